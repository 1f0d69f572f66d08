// The instruction output record: up to 32 bits that a statement builds before
// they go to the section, with the listing mark of the word.
#include <algorithm>

#include "directives/section_pending.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/records.h"
#include "expr/reloc.h"
#include "listing/listing.h"
#include "source/lexer.h"
#include "target/arm/trg.h"

void IOR_clear(IOR_STRUCT *ior) {
  std::fill(std::begin(ior->ior_data), std::end(ior->ior_data), uint8_t{0});
  ior->ior_length = 0;
  std::fill(std::begin(ior->ior_relch), std::end(ior->ior_relch), ' ');
}

void IOR_write(IOR_STRUCT *ior, unsigned size, unsigned offset, uint32_t value) {
  if (!TRG_IOR_write()) return;
  if (offset + size > 32) {
    error_internal(1, curline, "Out of Space in IOR");
    return;
  }
  if (size) {
    // Bit b lies in byte b / 8 at b % 8: the record read as a little-endian
    // word, whatever the host's order.
    uint8_t *d = ior->ior_data;
    uint32_t word = uint32_t{d[0]} | uint32_t{d[1]} << 8 | uint32_t{d[2]} << 16 | uint32_t{d[3]} << 24;
    const uint32_t mask = (size >= 32 ? ~0u : (1u << size) - 1) << offset;
    word = (word & ~mask) | ((value << offset) & mask);
    for (unsigned k = 0; k < 4; ++k) d[k] = static_cast<uint8_t>(word >> (8 * k));
  }
  ior->ior_length = static_cast<uint16_t>(std::max<unsigned>(ior->ior_length, offset + size));
}

void IOR_reloc(IOR_STRUCT *ior, const value_record *value, unsigned offset) {
  char &mark = ior->ior_relch[offset / 4 < sizeof ior->ior_relch ? offset / 4 : 0];
  if (value->v_rel)
    mark = '%';
  else if (RELOC_is_scnrel(value) && value->v_section)
    mark = SCN_get_relch(value->v_section);
  else
    mark = '!';
}

void IOR_list(IOR_STRUCT *ior, linebuf *line, uint32_t address) {
  if (!line) return;
  const unsigned count = std::min<unsigned>(ior->ior_length / 8, 4);
  unsigned char bytes[4] = {ior->ior_data[3], ior->ior_data[2], ior->ior_data[1], ior->ior_data[0]};
  LST_object(line, address, bytes, ior->ior_relch[0], static_cast<unsigned char>(count));
}

void IOR_dump(IOR_STRUCT *ior, instruct *ir, int mapping_kind) {
  if (ior->ior_length % 8) error_internal(1, curline, "IOR holds a partial byte");
  SCN_align(8, 0);
  if (ir) IOR_list(ior, ir->line, SCN_address());
  const unsigned count = ior->ior_length / 8;
  const bool big = curseg && curseg->scn_big_endian;
  const uint8_t *d = ior->ior_data;
  if (!big &&
      SCN_insert_bytes_le(uint32_t{d[0]} | uint32_t{d[1]} << 8 | uint32_t{d[2]} << 16 | uint32_t{d[3]} << 24,
                          count, mapping_kind)) {
    IOR_clear(ior);
    return;
  }
  for (unsigned i = 0; i < count; ++i)
    SCN_insert_byte(ior->ior_data[big ? count - 1 - i : i], mapping_kind);
  IOR_clear(ior);
}

void IOR_merge(IOR_STRUCT *a, const IOR_STRUCT *b) {
  for (unsigned i = 0; i < 4; ++i) a->ior_data[i] |= b->ior_data[i];
  a->ior_length = std::max(a->ior_length, b->ior_length);
}

bool IOR_intersect(const IOR_STRUCT *a, const IOR_STRUCT *b) {
  const unsigned bytes = std::min(a->ior_length, b->ior_length) / 8;
  for (unsigned i = 0; i < bytes; ++i)
    if (a->ior_data[i] & b->ior_data[i]) return true;
  return false;
}
