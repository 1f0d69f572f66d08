// Jump records: what pass 1 records for jump expansion, the length a jump
// needs, and the chained targets that pass 2 reads back.
#include "target/arm/jumps.h"

#include <bit>
#include <deque>
#include <unordered_map>

#include "directives/section_pending.h"
#include "directives/sections.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "expr/symbols.h"
#include "expr/symbols_internal.h"
#include "expr/value.h"
#include "target/arm/instr.h"
#include "target/arm/jumps_internal.h"
#include "target/arm/trg.h"

namespace {

// Records live until the end of the run; a deque keeps their addresses.
std::deque<jumprec> pool;
// Per section, the chained branches by address, for pass 2.
std::unordered_map<const section_record *, std::unordered_map<uint32_t, const jumprec *>> chained_at;

constexpr int IC_T_BT = 117;
constexpr int IC_T_BQ = 118;

jumprec *append(JUMP_LIST_TYPE kind) {
  jumprec *rec = &pool.emplace_back();
  rec->kind = kind;
  rec->cond = COND_NV;
  auto &list = curseg->scn_jumps;
  (list.tail ? list.tail->next : list.head) = rec;
  list.tail = rec;
  return rec;
}

}  // namespace

bool VLI_dst_is_simple_label(const value_record *value) {
  if (!value || value->v_type == VT_SCNREL || value->v_rel) return false;
  if (value->v_type == VT_UNDEFSYM || value->v_type == VT_COMMON) return value->v_val == 0;
  const symbol_record *sym = value->v_symbol;
  return sym && sym->sym_section == value->v_section && sym->sym_value.v_val == value->v_val;
}

void VLI_addjump_cond(JUMP_LIST_TYPE kind, uint32_t pc, value_record *dest, uint32_t size_index,
                      value_record *label_value, symbol_record *symbol, uint16_t power, uint8_t cond,
                      int32_t chain_limit) {
  if (!curseg) return;
  if (!is_jump_kind(kind)) {
    VLI_addjump(kind, pc, dest, size_index, label_value, symbol, power, 0);
    return;
  }
  // The operand's value is the statement's; the symbol's own value outlives
  // it and sees the label move.
  if (!VLI_dst_is_simple_label(dest) || !dest->v_symbol) return;
  jumprec *rec = append(kind);
  rec->pc = pc;
  rec->dest = &dest->v_symbol->sym_value;
  rec->size_index = size_index;
  rec->cond = cond;
  rec->chain_limit = chain_limit;
}

void VLI_addjump(JUMP_LIST_TYPE kind, uint32_t pc, value_record *dest, uint32_t size_index,
                 value_record *label_value, symbol_record *symbol, uint16_t power, int32_t pad) {
  if (!curseg) return;
  if (is_jump_kind(kind)) {
    VLI_addjump_cond(kind, pc, dest, size_index, nullptr, nullptr, 0, COND_NV, 0);
    return;
  }
  // What lies ahead of a section's first jump can't move.
  if (!curseg->scn_jumps.head) return;
  jumprec *rec = append(kind);
  rec->symbol = symbol;
  rec->label_value = label_value;
  rec->power = power;
  rec->pad = pad;
}

void SYM_record_label_jump(symbol_record *sym) {
  VLI_addjump(JUMP_LABEL, 0, nullptr, 0, &sym->sym_value, sym, 0, 0);
}

void VLI_addalign(int power, int32_t pad) {
  // Lengths, and so every shift, change by even amounts only, which an
  // alignment to 2 bytes or less passes on unchanged. Every statement aligns
  // itself: Thumb ones to 2 bytes, data bytes to 1; none of these needs a record.
  if (power <= 1) return;
  VLI_addjump(JUMP_ALIGN, 0, nullptr, 0, nullptr, nullptr, static_cast<uint16_t>(power), pad);
}

int VLI_width(int64_t v) {
  // The k of -2^k <= v < 2^k is the bit width of v, or of ~v when negative.
  const auto k = std::bit_width(static_cast<uint64_t>(v >= 0 ? v : ~v));
  return k <= 30 ? 1 + k : 32;
}

uint32_t VLI_length_for(JUMP_LIST_TYPE kind, int64_t off) {
  const int w = VLI_width(off);
  switch (kind) {
    case JUMP_COND: return w < 10 ? 2 : 4;
    case JUMP_UNCOND: return w < 13 ? 2 : 4;
    case JUMP_COND_FAR:
      // The second halfword of the two-part form reaches from 2 bytes further on.
      if (w < 10) return 2;
      return VLI_width(off - 2) < 13 ? 4 : 6;
    case JUMP_LOAD_ADDR: return off >= 0 && w < 12 ? 2 : 4;
    default: return 0;
  }
}

int32_t VLI_jump_offset(JUMP_LIST_TYPE kind, uint32_t dest, uint32_t pc) {
  auto off = static_cast<int32_t>(dest - pc - 4);
  // A load reaches words: its address is rounded up.
  if (kind == JUMP_LOAD_ADDR) off = static_cast<int32_t>((static_cast<uint32_t>(off) + 3) & ~3u);
  return off;
}

VLI_size_rule VLI_rule_of(const section_record *section, const jumprec *rec, uint32_t *size) {
  if (rec->chain) {
    *size = rec->chain_size;
    return VLI_size_rule::fixed;
  }
  const value_record *dest = rec->dest;
  if (!is_relocatable(dest)) return VLI_size_rule::keep;
  if (dest->v_section != section) {
    *size = 4;
    return VLI_size_rule::fixed;
  }
  return VLI_size_rule::distance;
}

uint32_t VLI_jump_size(const section_record *section, const jumprec *rec) {
  uint32_t size = 0;
  switch (VLI_rule_of(section, rec, &size)) {
    case VLI_size_rule::fixed: return size;
    case VLI_size_rule::keep: return rec->size_index < isize_list.size() ? isize_list[rec->size_index] : 2;
    case VLI_size_rule::distance: break;
  }
  return VLI_length_for(rec->kind, VLI_jump_offset(rec->kind, rec->dest->v_val.to_u32(), rec->pc));
}

void VLI_index_chains() {
  chained_at.clear();
  for (const section_record *s = seglist; s; s = s->scn_next) {
    for (const jumprec *r = s->scn_jumps.head; r; r = r->next) {
      if (is_jump_kind(r->kind) && r->chain) chained_at[s].emplace(r->pc, r);
    }
  }
}

bool chained_branch(int class_id, int *out) {
  if (cur_state != STATE_THUMB16 || (class_id != IC_T_BT && class_id != IC_T_BQ) || !curseg) return false;
  const auto section = chained_at.find(curseg);
  if (section == chained_at.end()) return false;
  const auto found = section->second.find(SCN_address());
  if (found == section->second.end()) return false;
  const jumprec *rec = found->second;
  *out = static_cast<int32_t>(rec->chain->pc - rec->pc - 4) >> 1;
  return true;
}

void VLI_free_jumps() {
  for (section_record *s = seglist; s; s = s->scn_next) s->scn_jumps = {};
  chained_at.clear();
  pool.clear();
}
