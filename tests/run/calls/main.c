/* Calls between assembly and C both ways, tables of addresses, and data
   shared by name. */
#include <stdlib.h>
#include <string.h>

#include "check.h"

uint32_t cl_helper(uint32_t);
uint32_t cl_twice(uint32_t);
uint32_t cl_fib(uint32_t);
uint32_t cl_call_c(uint32_t);
void cl_sort_words(int32_t *p, uint32_t n);
uint32_t cl_dispatch(uint32_t i, uint32_t a, uint32_t b);
uint32_t cl_switch(uint32_t i, uint32_t a);
uint32_t cl_bump(uint32_t a);
extern uint32_t cl_counter;

/* Reached from the assembly by name. */
uint32_t c_total = 100;
uint32_t c_scale(uint32_t x, uint32_t k);
uint32_t c_scale(uint32_t x, uint32_t k) { return x * k - 3; }

static uint32_t fib(uint32_t n) { return n < 2 ? n : fib(n - 1) + fib(n - 2); }
static int by_value(const void *x, const void *y) {
  const int32_t a = *(const int32_t *)x, b = *(const int32_t *)y;
  return (a > b) - (a < b);
}

int main(void) {
  char what[96];
  for (unsigned i = 0; i < CHECK_NVALUES; ++i) {
    const uint32_t a = check_values[i], b = check_values[(i + 4) % CHECK_NVALUES];
    snprintf(what, sizeof what, "twice(0x%x)", a);
    check32(what, cl_twice(a), (a * 3 + 1) * 3 + 1);
    snprintf(what, sizeof what, "call_c(0x%x)", a);
    check32(what, cl_call_c(a), a * 5 - 3 + 1);
    const uint32_t want[5] = {a + b, a - b, a * b, b * a - 3, 0};
    for (uint32_t k = 0; k < 4; ++k) {
      snprintf(what, sizeof what, "dispatch(%u, 0x%x, 0x%x)", k, a, b);
      check32(what, cl_dispatch(k, a, b), want[k]);
    }
    const uint32_t cases[5] = {a * 10, a + 7, ~a, a >> 1, 0};
    for (uint32_t k = 0; k < 6; ++k) {
      snprintf(what, sizeof what, "switch(%u, 0x%x)", k, a);
      check32(what, cl_switch(k, a), cases[k < 4 ? k : 4]);
    }
  }
  check32("dispatch count", cl_counter, 4 * CHECK_NVALUES);
  for (uint32_t n = 0; n < 20; ++n) {
    snprintf(what, sizeof what, "fib(%u)", n);
    check32(what, cl_fib(n), fib(n));
  }
  check32("bump", cl_bump(5), 105);
  check32("bump again", cl_bump(0xffffffffu), 104);
  check32("c_total", c_total, 104);

  int32_t sorted[CHECK_NVALUES], by_c[CHECK_NVALUES];
  memcpy(sorted, check_values, sizeof sorted);
  memcpy(by_c, check_values, sizeof by_c);
  cl_sort_words(sorted, CHECK_NVALUES);
  qsort(by_c, CHECK_NVALUES, sizeof *by_c, by_value);
  check_bytes("sort_words", sorted, by_c, sizeof sorted);
  return check_done("calls");
}
