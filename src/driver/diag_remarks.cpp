// Remark suppression: command-line records live for the run, directive records for one pass.
#include <algorithm>
#include <vector>

#include "driver/diag.h"

namespace {
struct suppression {
  unsigned id;
  remark_lifetime life;
};
std::vector<suppression> suppressed;
bool all_suppressed = false;

auto find_id(unsigned id) {
  return std::find_if(suppressed.begin(), suppressed.end(), [id](const suppression &s) { return s.id == id; });
}
}  // namespace

void supress_remark(unsigned id, remark_lifetime life) {
  if (find_id(id) == suppressed.end()) suppressed.push_back({id, life});
}

void supress_all_remarks() { all_suppressed = true; }

void unsupress_remark(unsigned id) {
  auto it = find_id(id);
  if (it != suppressed.end() && it->life == REMARK_PASS) suppressed.erase(it);
}

bool remark_is_supressed(unsigned id) { return all_suppressed || find_id(id) != suppressed.end(); }

void remark_reset() {
  suppressed.clear();
  all_suppressed = false;
}

void remark_reset_directives() {
  std::erase_if(suppressed, [](const suppression &s) { return s.life == REMARK_PASS; });
}
