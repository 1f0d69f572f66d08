// Values that must not change between the passes: pass 1 records them in
// statement order, pass 2 reads them back and holds to them.
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "expr/int128.h"
#include "source/lexer.h"

std::vector<uint32_t> isize_list;
uint32_t isize_idx = 0;

void VLI_check(value_record *value) {
  int32_t now = 0;
  XI_xtoi(value->v_val.b, &now);
  if (pass1) {
    isize_list.push_back(static_cast<uint32_t>(now));
    return;
  }
  // A pass 2 that outruns pass 1 has taken another path; nothing is left to hold to.
  if (isize_idx >= isize_list.size()) return;
  const auto then = static_cast<int32_t>(isize_list[isize_idx++]);
  if (then == now) return;
  error(curline, "E0200", "Value of expression has changed due to jump expansion");
  XI_itox(then, value->v_val.b);
}

void VLI_push(uint32_t length) { isize_list.push_back(length); }

uint32_t VLI_pop() {
  // A pass 2 that outruns pass 1 has taken another path; the labels behind
  // the statement report it.
  if (isize_idx >= isize_list.size()) return 2;
  return isize_list[isize_idx++];
}
