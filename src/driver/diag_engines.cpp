// Engine errors become assembler messages: warnings, internal errors or
// counted errors, by the engine's code.
#include "driver/diag_engines.h"

#include "driver/diag.h"
#include "ofe/object_file.h"
#include "source/lexer.h"

namespace {

// Codes of the DWARF editor that are not plain errors.
constexpr int DW_ERR_INTERNAL = 5;
constexpr int DW_ERR_DEVELOPMENT = 6;

const char *described(const char *text, const char *fallback) { return text && *text ? text : fallback; }

}  // namespace

void ofile_error_handler(OFE::OBJECT_FILE *file, OFE::OF_ERROR_CODE code, const char *text) {
  const char *body = described(text, "no description available");
  // An error the engine left undescribed is its own fault.
  const char *pending = file ? file->error_message() : nullptr;
  if (!pending || !*pending) code = OFE::OFERR_INTERNAL;
  switch (code) {
    case OFE::OFERR_WARNING:
      warn(curline, "W1500", "%s:  %s", OFE::OBJECT_FILE::error_code_name(code), body);
      break;
    case OFE::OFERR_INTERNAL:
      error_internal(0, curline, "%s", body);
      break;
    case OFE::OFERR_DEVELOPMENT:
      break;
    default:
      error(curline, "E1500", "%s:  %s", OFE::OBJECT_FILE::error_code_name(code), body);
      break;
  }
  if (file) file->clear_error();
}

void dwarf_error_handler(DWE::DWARF_EDITOR *editor, DWE::DW_ERROR_CODE code, const char *text) {
  switch (static_cast<int>(code)) {
    case DW_ERR_INTERNAL:
      error_internal(0, curline, "%s", described(text, "DWARF error:  no description available"));
      break;
    case DW_ERR_DEVELOPMENT:
      break;
    default:
      error(curline, "E1500", "DWARF %s:  %s", dw_error_code_name(code), described(text, "no description available"));
      break;
  }
  dw_clear_pending_error(editor);
}
