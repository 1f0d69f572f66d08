// Scopes of local labels. The lexer renames `$n` and `name?` with these
// numbers, so a scope ends simply by moving on to the next number.
#include "driver/driver.h"
#include "expr/symbols.h"

int32_t file_loclbl_cnt;
int32_t mac_loclbl_cnt;
int32_t LBL_max_count;
uint32_t local_block_start;

void LOCLBL_flush() { ++file_loclbl_cnt; }

void LOCLBL_block_start() { local_block_start = curpc; }

void LOCLBL_init() {
  file_loclbl_cnt = 0;
  mac_loclbl_cnt = 0;
  LBL_max_count = 0;
  local_block_start = 0;
}
