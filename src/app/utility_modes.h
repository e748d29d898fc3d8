#pragma once
// Options for scripts and checks, beside the command words: each takes the
// arguments after its option (UTF-8) and returns the exit status.

#include <string>
#include <vector>

namespace lp {

struct ModeArgs {
  std::vector<std::string> args;  // the arguments after the option
  std::string configPath;         // --config, or empty for the usual place
};

int NormaliseMode(const ModeArgs& in);  // --normalise TEXT|-
int EvalMode(const ModeArgs& in);       // --eval TEXT|- [--x X]
int EqMode(const ModeArgs& in);         // --eq TEXT|-
int LatexMode(const ModeArgs& in);      // --latex TEXT|-
int JpegMode(const ModeArgs& in);       // --jpeg IN OUT [--jpeg-options N]

}  // namespace lp
