/* Thumb functions with far branches against their C equivalents. Their
   symbols carry no Thumb bit, so they are called through pointers that do. */
#include "check.h"

void jp_hops(void);
void jp_cmp(void);
void jp_ne(void);
void jp_chain(void);

typedef uint32_t (*thumb_fn)(uint32_t);
static thumb_fn thumb(void (*f)(void)) { return (thumb_fn)((uintptr_t)f | 1); }

int main(void) {
  char what[64];
  const thumb_fn hops = thumb(jp_hops), cmp = thumb(jp_cmp), ne = thumb(jp_ne), chain = thumb(jp_chain);
  for (unsigned i = 0; i < CHECK_NVALUES; ++i) {
    const uint32_t v = check_values[i];
    snprintf(what, sizeof what, "hops(0x%x)", v);
    check32(what, hops(v), v + 3);
    snprintf(what, sizeof what, "cmp(0x%x)", v);
    check32(what, cmp(v), (int32_t)v >= 10 ? 1 : 2);
    snprintf(what, sizeof what, "ne(0x%x)", v);
    check32(what, ne(v), v == 0 ? 5 : 6);
    snprintf(what, sizeof what, "chain(0x%x)", v);
    check32(what, chain(v), v + 9);
  }
  check32("cmp(9)", cmp(9), 2);
  check32("cmp(10)", cmp(10), 1);
  check32("cmp(-1)", cmp(0xffffffffu), 2);
  check32("ne(0)", ne(0), 5);
  return check_done("jumps");
}
