// Errors handed over by the object engine become assembler messages.
#include "driver/diag.h"
#include "ofe/object_file.h"
#include "source/lexer.h"

void ofile_error_handler(OFE::OBJECT_FILE *of, OFE::OF_ERROR_CODE code, const char *text) {
  const char *pending = of ? of->error_message() : nullptr;
  if (!pending || !*pending) code = OFE::OFERR_INTERNAL;
  if (!text || !*text) text = "no description available";
  const char *name = OFE::OBJECT_FILE::error_code_name(code);
  switch (code) {
    case OFE::OFERR_WARNING:
      warn(curline, "W1500", "%s:  %s", name, text);
      break;
    case OFE::OFERR_INTERNAL:
      error_internal(0, curline, "%s", text);
      break;
    case OFE::OFERR_DEVELOPMENT:
      break;
    default:
      error(curline, "E1500", "%s:  %s", name, text);
      break;
  }
  if (of) of->clear_error();
}
