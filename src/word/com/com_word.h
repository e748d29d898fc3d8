#pragma once
// Word itself, through COM, on Windows.

#include <memory>

#include "word/connector.h"

namespace word::com {

// Attaches to the running "Word.Application" or starts one. COM is set up
// for the calling thread while the connector lives.
std::unique_ptr<lp::WordConnector> MakeComConnector();

}  // namespace word::com
