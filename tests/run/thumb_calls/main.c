/* Calls from and to 16-bit Thumb code across states, against C. */
#include "check.h"

uint32_t tt_helper(uint32_t), tt_twice(uint32_t), tt_fib(uint32_t), tt_call_arm(uint32_t),
    tt_call_arm_here(uint32_t), tt_call_c(uint32_t), at_call_thumb(uint32_t);

uint32_t c_scale(uint32_t x, uint32_t k);
uint32_t c_scale(uint32_t x, uint32_t k) { return x * k; }

static uint32_t fib(uint32_t n) { return n < 2 ? n : fib(n - 1) + fib(n - 2); }

int main(void) {
  char what[64];
  for (unsigned i = 0; i < CHECK_NVALUES; ++i) {
    const uint32_t x = check_values[i];
    snprintf(what, sizeof what, "helper(0x%x)", x);
    check32(what, tt_helper(x), 3 * x + 1);
    snprintf(what, sizeof what, "twice(0x%x)", x);
    check32(what, tt_twice(x), 3 * (3 * x + 1) + 1);
    snprintf(what, sizeof what, "call_arm(0x%x)", x);
    check32(what, tt_call_arm(x), 3 * x + 1);
    snprintf(what, sizeof what, "call_arm_here(0x%x)", x);
    check32(what, tt_call_arm_here(x), x - 5);
    snprintf(what, sizeof what, "call_c(0x%x)", x);
    check32(what, tt_call_c(x), 5 * x + 1);
    snprintf(what, sizeof what, "arm_calls_thumb(0x%x)", x);
    check32(what, at_call_thumb(x), 3 * (3 * x + 1) + 1 + 100);
  }
  for (uint32_t n = 0; n < 20; ++n) {
    snprintf(what, sizeof what, "fib(%u)", n);
    check32(what, tt_fib(n), fib(n));
  }
  return check_done("thumb_calls");
}
