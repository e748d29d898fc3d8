#pragma once
// ReportError, ShowInputError, TrailingZeros, ReadRegistryValue: to be written.
