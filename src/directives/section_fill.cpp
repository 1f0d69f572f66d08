// The location counter and the 32-bit accumulator through which every bit
// of a section's contents passes on its way to the object section.
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "ofe/of_section.h"
#include "source/lexer.h"
#include "target/arm/trg.h"

// until target/arm/jumps.h declares it
void VLI_addalign(int power, int32_t pad);

// The target installs its fill function at start-up.
void (*SCN_trg_align)(unsigned long bits) = nullptr;

namespace {

constexpr unsigned long MAX_ALIGN_BITS = 0x40000;  // 32 KiB
// The end of the last byte that a 32-bit counter can address and pass.
constexpr uint64_t LIMIT_BITS = UINT64_C(0xFFFFFFFF) * 8;

uint32_t low_mask(unsigned n) { return n >= 32 ? 0xFFFFFFFFu : (1u << n) - 1; }

// Bits [lo, lo + n) of v, n at most 32; v is non-negative below bit 128.
uint32_t bits_of(const INT128 &v, unsigned lo, unsigned n) {
  if (lo >= 128 || n == 0) return 0;
  return (v >> static_cast<int>(lo)).to_u32() & low_mask(n);
}

// Whole words go to the counter, the rest stays as a count of bits.
void advance_counter(unsigned long total_bits) {
  curseg->scn_field_bits = static_cast<uint32_t>(total_bits % 32);
  curpc += static_cast<uint32_t>(total_bits >> 3) & ~3u;
}

bool big_endian_fields(bool swap) { return swap || curseg->scn_big_endian; }

void list_word(instruct *ir, uint32_t word) {
  IOR_STRUCT ior;
  IOR_clear(&ior);
  IOR_write(&ior, 32, 0, word);
  IOR_list(&ior, ir->line, curpc);
}

void write_out_accumulator() {
  SCN_emit_raw(32, curseg->scn_field_word);
  curseg->scn_field_word = 0;
  curseg->scn_field_bits = 0;
}

}  // namespace

int SCN_align_flag(unsigned long bits) {
  const unsigned long a = bits > MAX_ALIGN_BITS ? MAX_ALIGN_BITS : bits;
  int n = 0;
  if (a >= 8) {
    const unsigned long bytes = a / 8;
    while ((1ul << n) < bytes) ++n;
    if ((1ul << n) != bytes) warn(curline, "W0001", "Power of 2 required, %u assumed", 8u << n);
  }
  if (curseg && (1ull << n) > curseg->scn_object->align()) curseg->scn_object->set_align(1ull << n);
  return n;
}

void SCN_align(unsigned long bits, unsigned long fill) {
  if (!curseg || curseg->scn_object->unit_size() != 8) return;
  // Byte alignment on a byte boundary is the common case of every data byte.
  if (bits == 8 && pass2 && curseg->scn_field_bits % 8 == 0) return;
  // So is an instruction's alignment on an aligned address in a section
  // aligned at least as much, unless pass 1 records alignments for jumps.
  if ((bits == 16 || bits == 32) && (uint64_t{curpc} * 8 + curseg->scn_field_bits) % bits == 0 &&
      curseg->scn_object->align() >= bits / 8 && !(pass1 && curseg->scn_jumps.head))
    return;
  SCN_core_align(bits, fill, SCN_trg_align);
}

void SCN_core_align(unsigned long bits, unsigned long fill, void (*fill_function)(unsigned long)) {
  if (!curseg) return;
  const int n = SCN_align_flag(bits);
  unsigned long a = bits > MAX_ALIGN_BITS ? MAX_ALIGN_BITS : bits;
  if (a >= 8) a = 8ul << n;
  if (a == 0) a = 1;
  const unsigned long p = static_cast<unsigned long>(curpc) * 8;
  unsigned long f = curseg->scn_field_bits;
  unsigned long gap = 0;
  if ((p + f) % a != 0) gap = a - p % a + (f + p % a) / a * a;

  if (pass1 && !opt_on(OPT_DISABLE_BRANCH_PATCHING) && curseg->scn_jumps.head)
    VLI_addalign(n, gap ? static_cast<int32_t>((gap - f) >> 3) : 0);
  if (gap == 0 || !SCN_room(gap - f)) return;

  if (pass1 || curseg->scn_kind == SCN_KIND_BSS) {
    advance_counter(gap);
    return;
  }
  if (f) {
    f = (f + 7) & ~7ul;
    curseg->scn_field_bits = static_cast<uint32_t>(f);
    gap = gap > f ? gap - f : 0;
  }
  if (fill_function) {
    if (gap) fill_function(gap);
    return;
  }
  const INT128 pattern = xi_from_uint(static_cast<uint32_t>(fill));
  while (gap) {
    const unsigned room = 32 - curseg->scn_field_bits % 32;
    const unsigned chunk = gap < room ? static_cast<unsigned>(gap) : room;
    SCN_insert_field(chunk, pattern, nullptr, 2, false);
    gap -= chunk;
  }
}

bool SCN_room(uint64_t bits) {
  if (!curseg) return false;
  if (curseg->scn_full) return false;
  const uint64_t next = static_cast<uint64_t>(curpc) * 8 + curseg->scn_field_bits;
  if (next <= LIMIT_BITS && bits <= LIMIT_BITS - next) return true;
  error(curline, "E0004", "Section %s goes beyond the 32-bit address space", curseg->name());
  curseg->scn_full = 1;
  curpc = UINT32_C(0xFFFFFFFF);
  curseg->scn_field_word = 0;
  curseg->scn_field_bits = 0;
  return false;
}

void SCN_space(unsigned long bits) {
  if (!SCN_room(bits)) return;
  advance_counter(curseg->scn_field_bits + bits);
}

namespace {

// Moves a field through the accumulator; bits_at(lo, n) gives bits [lo, lo + n)
// of the value, so small fields need no 128-bit arithmetic.
template <typename Bits>
void insert_bits(unsigned bits, bool zero, Bits bits_at, instruct *ir, bool swap) {
  if (!SCN_room(bits)) return;
  if (curseg->scn_field_bits == 32) write_out_accumulator();
  const bool big = big_endian_fields(swap);
  unsigned placed = 0;  // bits taken from the low end (little-endian order)
  unsigned rest = bits;
  while (rest) {
    unsigned space = 32 - curseg->scn_field_bits;
    if (space == 0) {
      if (ir) list_word(ir, curseg->scn_field_word);
      write_out_accumulator();
      space = 32;
    }
    const unsigned take = rest < space ? rest : space;
    if (!zero) {
      if (!big)
        curseg->scn_field_word |= bits_at(placed, take) << curseg->scn_field_bits;
      else if (rest >= space)
        curseg->scn_field_word |= bits_at(rest - space, space);
      else
        curseg->scn_field_word |= bits_at(0, rest) << (space - rest);
    }
    placed += take;
    curseg->scn_field_bits += take;
    rest -= take;
  }
  if (ir && curseg->scn_field_bits) list_word(ir, curseg->scn_field_word);
}

}  // namespace

void SCN_insert_field(unsigned bits, const INT128 &value, instruct *ir, int mapping_kind, bool swap) {
  if (!curseg) return;
  TRG_add_mapping_sym(mapping_kind);
  if (bits <= 32) {
    const uint32_t v = value.to_u32() & low_mask(bits);
    insert_bits(bits, v == 0, [v](unsigned lo, unsigned n) { return (v >> lo) & low_mask(n); }, ir, swap);
    return;
  }
  INT128 v = value;
  if (bits < 128) v &= (xi_from_int(1) << static_cast<int>(bits)) - xi_from_int(1);
  insert_bits(bits, v.is_zero(), [&v](unsigned lo, unsigned n) { return bits_of(v, lo, n); }, ir, swap);
}

bool SCN_insert_bytes_le(uint32_t value, unsigned count, int mapping_kind) {
  // What `count` SCN_insert_byte calls do, the low byte first, in a
  // little-endian section on a byte boundary; anything else goes byte by byte.
  if (!curseg || curseg->scn_big_endian || count == 0 || count > 4 || curseg->scn_field_bits % 8 != 0 ||
      !SCN_room(8 * count))
    return false;
  TRG_add_mapping_sym(mapping_kind);
  const uint64_t v = value & low_mask(8 * count);
  if (curseg->scn_field_bits == 32) write_out_accumulator();
  const unsigned space = 32 - curseg->scn_field_bits;
  curseg->scn_field_word |= static_cast<uint32_t>(v << curseg->scn_field_bits);
  if (8 * count <= space) {
    curseg->scn_field_bits += 8 * count;
    return true;
  }
  // The word fills up: it goes out, and the rest starts the next one.
  curseg->scn_field_bits = 32;
  write_out_accumulator();
  curseg->scn_field_word = static_cast<uint32_t>(v >> space);
  curseg->scn_field_bits = 8 * count - space;
  return true;
}

void SCN_insert_byte(unsigned byte, int mapping_kind) {
  SCN_insert_field(8, xi_from_uint(byte & 0xFF), nullptr, mapping_kind, false);
}

void SCN_align_field(unsigned bits) {
  if (!curseg) return;
  const uint32_t used = (curpc * 8 + curseg->scn_field_bits) % 32;
  if (used == 0 || used + bits <= 32) return;
  if (!SCN_room(32 - used)) return;
  if (pass1) {
    curpc += 4;
    curseg->scn_field_bits = 0;
  } else {
    write_out_accumulator();
  }
}

namespace {

// The current section's contents, with the cursor behind the last byte.
DATA_MAP &contents_end() {
  OFE::OF_SECTION *os = curseg->scn_object;
  os->validate_initialized();
  DATA_MAP &map = os->raw_data_nocheck();
  map.set_cursor(map.size());
  return map;
}

}  // namespace

void SCN_emit_raw(unsigned size, uint32_t word) {
  if (size < 8) error_internal(0, curline, "size < TRG_MEM_WIDTH !");
  if (size != 8 && size != 16 && size != 24 && size != 32) {
    error_internal(1, curline, "Can't deal with specified dump size");
    return;
  }
  DATA_MAP &map = contents_end();
  const unsigned count = size / 8;
  for (unsigned i = 0; i < count; ++i) {
    const unsigned shift = curseg->scn_big_endian ? 24 - 8 * i : 8 * i;
    map.UINT8_write(static_cast<uint8_t>(word >> shift));
  }
  curpc += count;
}

void SCN_insert_zero_words(uint64_t words) {
  if (!curseg || words == 0 || !SCN_room(words * 32)) return;
  TRG_add_mapping_sym(0);
  if (curseg->scn_field_bits == 32) write_out_accumulator();
  if (curseg->scn_field_bits != 0) {
    error_internal(1, curline, "zero words inserted into a partly filled word");
    return;
  }
  contents_end().zeros_write(words * 4);
  curpc += static_cast<uint32_t>(words * 4);
}

void SCN_dump_field() {
  if (!curseg || curseg->scn_field_bits == 0) return;
  SCN_emit_raw((curseg->scn_field_bits + 7) & ~7u, curseg->scn_field_word);
  curseg->scn_field_word = 0;
  curseg->scn_field_bits = 0;
}
