#include "toolkit/parser.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "runtime/decimal_digits.h"
#include "toolkit/emitter.h"

namespace lp {
namespace {

constexpr int kMaxNesting = 200;

struct Function {
  std::string_view name;
  OpCode code;
};

constexpr std::array<Function, 9> kFunctions = {{
    {"sin", OpCode::kSin},
    {"cos", OpCode::kCos},
    {"tan", OpCode::kTan},
    {"atn", OpCode::kAtn},
    {"sqr", OpCode::kSqr},
    {"log", OpCode::kLog},
    {"abs", OpCode::kAbs},
    {"int", OpCode::kInt},
    {"exp", OpCode::kExp},
}};

// Words of the script language that are no variable names: using one in an
// expression is outside the language.
constexpr std::array<std::string_view, 60> kReservedWords = {
    "and",    "byref",    "byval",   "call",     "case",    "class", "const",    "default",
    "dim",    "do",       "each",    "else",     "elseif",  "empty", "end",      "eqv",
    "erase",  "error",    "exit",    "explicit", "false",   "for",   "function", "get",
    "goto",   "if",       "imp",     "in",       "is",      "let",   "loop",     "me",
    "mod",    "new",      "next",    "not",      "nothing", "null",  "on",       "option",
    "or",     "preserve", "private", "property", "public",  "redim", "rem",      "resume",
    "select", "set",      "step",    "stop",     "sub",     "then",  "to",       "true",
    "until",  "wend",     "while",   "xor",
};

bool IsAsciiDigit(char16_t c) {
  return c >= u'0' && c <= u'9';
}
bool IsAsciiLetter(char16_t c) {
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

class Parser {
 public:
  explicit Parser(const std::u16string& text) : text_(text) {}

  std::vector<Instruction> Run() {
    Expression();
    SkipBlanks();
    if (pos_ != text_.size()) Syntax();
    return out_.Take();
  }

 private:
  // Counts the depth of recursion so that a deeply nested text fails
  // cleanly instead of exhausting the stack.
  struct Nesting {
    explicit Nesting(int& depth) : depth_(depth) {
      if (++depth_ > kMaxNesting) RaiseEvalError(EvalErrorKind::kTooComplex);
    }
    ~Nesting() { --depth_; }
    int& depth_;
  };

  [[noreturn]] static void Syntax() { RaiseEvalError(EvalErrorKind::kSyntax); }

  void SkipBlanks() {
    while (pos_ < text_.size() && (text_[pos_] == u' ' || text_[pos_] == u'\t')) ++pos_;
  }

  bool Accept(char16_t c) {
    SkipBlanks();
    if (pos_ < text_.size() && text_[pos_] == c) {
      ++pos_;
      return true;
    }
    return false;
  }

  void Expression() {
    Term();
    for (;;) {
      if (Accept(u'+')) {
        Term();
        out_.Binary(OpCode::kAdd);
      } else if (Accept(u'-')) {
        Term();
        out_.Binary(OpCode::kSubtract);
      } else {
        return;
      }
    }
  }

  void Term() {
    Unary();
    for (;;) {
      if (Accept(u'*')) {
        Unary();
        out_.Binary(OpCode::kMultiply);
      } else if (Accept(u'/')) {
        Unary();
        out_.Binary(OpCode::kDivide);
      } else {
        return;
      }
    }
  }

  // The sign binds below ^: -2^2 is -4.
  void Unary() {
    Nesting nesting(depth_);
    if (Accept(u'-')) {
      Unary();
      out_.Unary(OpCode::kNegate);
    } else if (Accept(u'+')) {
      Unary();
    } else {
      Power();
    }
  }

  void Power() {
    Primary();
    while (Accept(u'^')) {
      PowerOperand();
      out_.Binary(OpCode::kPower);
    }
  }

  // A sign right after ^ belongs to the one operand: 2^-1 is 0.5.
  void PowerOperand() {
    Nesting nesting(depth_);
    if (Accept(u'-')) {
      PowerOperand();
      out_.Unary(OpCode::kNegate);
    } else if (Accept(u'+')) {
      PowerOperand();
    } else {
      Primary();
    }
  }

  void Primary() {
    SkipBlanks();
    if (pos_ >= text_.size()) Syntax();
    char16_t c = text_[pos_];
    if (IsAsciiDigit(c) || c == u'.') {
      Number();
    } else if (IsAsciiLetter(c)) {
      Name();
    } else if (Accept(u'(')) {
      Nesting nesting(depth_);
      Expression();
      if (!Accept(u')')) Syntax();
    } else {
      Syntax();
    }
  }

  size_t SkipDigits() {
    size_t start = pos_;
    while (pos_ < text_.size() && IsAsciiDigit(text_[pos_])) ++pos_;
    return pos_ - start;
  }

  void Number() {
    size_t start = pos_;
    size_t digits = SkipDigits();
    if (pos_ < text_.size() && text_[pos_] == u'.') {
      ++pos_;
      digits += SkipDigits();
    }
    if (digits == 0) Syntax();
    if (pos_ < text_.size() && (text_[pos_] == u'e' || text_[pos_] == u'E')) {
      ++pos_;
      if (pos_ < text_.size() && (text_[pos_] == u'+' || text_[pos_] == u'-')) ++pos_;
      if (SkipDigits() == 0) Syntax();
    }
    std::string ascii(text_.begin() + start, text_.begin() + pos_);
    std::optional<double> value = ReadDecimal(ascii);
    if (!value) RaiseEvalError(EvalErrorKind::kOverflow);
    out_.PushConst(*value);
  }

  std::string ReadName() {
    std::string name;
    while (pos_ < text_.size() &&
           (IsAsciiLetter(text_[pos_]) || IsAsciiDigit(text_[pos_]) || text_[pos_] == u'_')) {
      char16_t c = text_[pos_++];
      name += static_cast<char>(c >= u'A' && c <= u'Z' ? c + 32 : c);
    }
    return name;
  }

  void Name() {
    std::string name = ReadName();
    if (std::find(kReservedWords.begin(), kReservedWords.end(), name) != kReservedWords.end())
      Syntax();
    auto function = std::find_if(kFunctions.begin(), kFunctions.end(),
                                 [&](const Function& f) { return f.name == name; });
    bool isFunction = function != kFunctions.end();
    if (Accept(u'(')) {
      int arguments = Arguments();
      if (isFunction && arguments == 1) {
        out_.Unary(function->code);
      } else {
        out_.Fail(isFunction ? EvalErrorKind::kWrongArguments : EvalErrorKind::kUnknownFunction);
      }
    } else if (isFunction) {
      out_.Fail(EvalErrorKind::kWrongArguments);
    } else if (name == "x") {
      out_.PushX();
    } else {
      out_.PushConst(0);  // an unset variable
    }
  }

  // After "(": the arguments up to ")", each left on the stack.
  int Arguments() {
    Nesting nesting(depth_);
    if (Accept(u')')) return 0;
    int count = 0;
    do {
      Expression();
      ++count;
    } while (Accept(u','));
    if (!Accept(u')')) Syntax();
    return count;
  }

  const std::u16string& text_;
  size_t pos_ = 0;
  int depth_ = 0;
  Emitter out_;
};

}  // namespace

std::vector<Instruction> ParseExpression(const std::u16string& text) {
  return Parser(text).Run();
}

}  // namespace lp
