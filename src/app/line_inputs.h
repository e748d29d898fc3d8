#pragma once
// The TEXT|- convention of the text utility modes: one text from the command
// line, or one per line of standard input ("-"), each answered on one line.

#include <iostream>
#include <string>

namespace lp {

// Calls answer(text) for the text, or for each input line when the text is
// "-", and prints what it returns, one line each.
template <typename Answer>
void AnswerEachInput(const std::string& text, Answer answer) {
  if (text != "-") {
    std::cout << answer(text) << '\n';
    return;
  }
  std::string line;
  while (std::getline(std::cin, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    std::cout << answer(line) << '\n';
  }
}

}  // namespace lp
