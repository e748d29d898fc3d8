// Links the whole back end into a program, so that the cross build proves
// every Word object and COM entry point resolves. It connects to nothing.
#include "word/com/com_word.h"

int main(int argc, char**) {
  if (argc > 1) {
    auto connector = word::com::MakeComConnector();
    return connector->GetObject().Visible() ? 0 : 1;
  }
  return 0;
}
