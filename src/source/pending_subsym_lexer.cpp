// Interim substitution of tokens and forced substitution; the substitution
// symbols step makes them real. No substitution symbol can exist before it,
// so no name is ever replaced.
#include "driver/diag.h"
#include "source/lexer.h"
#include "source/subsym.h"

int32_t sstr_end_pos = -1;
SUBSYMTBL subsymtbl;

void LEX_prescan() {}

s_sym *SUBSYMTBL::SUBSYM_find(std::string, s_sym **out) {
  if (out) *out = nullptr;
  return nullptr;
}
s_sym *SUBSYMTBL::SUBSYM_find(token *, s_sym **out) {
  if (out) *out = nullptr;
  return nullptr;
}
int SUBSYMTBL::SUBSYM_check(std::string) { return 1; }
// Reached only through an entry, and there are none.
void SUBSYMTBL::SUBSYM_expand(token *tk, s_sym *) {
  error_internal(1, curline, "substitution of %s without substitution symbols", tk && tk->value.sval ? tk->value.sval : "?");
}
void SUBSYMTBL::SUBSYM_insert(std::string name, std::string) {
  error(curline, "E0301", "Substitution symbol %s can't be defined in this build", name.c_str());
}
void SUBSYMTBL::SUBSYM_remove(std::string) {}
void SUBSYMTBL::SUBSYM_clear() {}
