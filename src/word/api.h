#pragma once
// The Word object model as the tools use it. Back ends: word/docx (a .docx
// file is the document), word/com (Word itself on Windows), word/fake (tests).
#include "word/application.h"
