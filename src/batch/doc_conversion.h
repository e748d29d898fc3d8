#pragma once
// Old .doc files through LibreOffice: `soffice --headless --convert-to docx`
// writes a .docx beside the .doc, which stays.

#include "batch/batch_run.h"

namespace lp::batch {

// A converter when soffice is on the PATH; empty otherwise. Conversions run
// one at a time, with a profile of their own so that a LibreOffice the
// teacher has open is not disturbed.
DocConverter SofficeConverter();

}  // namespace lp::batch
