#pragma once
// The handler through which the DWARF editor reports (the object engine's,
// ofile_error_handler, is in diag.h): each handler turns an engine's code and
// text into an assembler message and clears the engine's pending error.
#include "driver/diag.h"

namespace DWE {
class DWARF_EDITOR;
enum DW_ERROR_CODE : int;
}  // namespace DWE

void dwarf_error_handler(DWE::DWARF_EDITOR *editor, DWE::DW_ERROR_CODE code, const char *text);

// The DWARF editor's name of a code, and the editor forgetting its pending error.
const char *dw_error_code_name(DWE::DW_ERROR_CODE code);
void dw_clear_pending_error(DWE::DWARF_EDITOR *editor);
