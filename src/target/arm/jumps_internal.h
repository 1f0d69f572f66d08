#pragma once
// The pieces of jump expansion that its files share (and its tests use).
#include <cstdint>

#include "target/arm/jumps.h"

// How a jump's length is found: a length that is known at once (chained, or
// a target in another section), the recorded length (a target that is no
// address), or the distance to the target in this section.
enum class VLI_size_rule : uint8_t { fixed, keep, distance };
VLI_size_rule VLI_rule_of(const section_record *section, const jumprec *rec, uint32_t *size);

// The smallest 1 + k (k from 0 to 30) with -2^k <= v < 2^k; 32 if none.
int VLI_width(int64_t v);
// dest - pc - 4 as signed 32 bits, for a load rounded up to a word.
int32_t VLI_jump_offset(JUMP_LIST_TYPE kind, uint32_t dest, uint32_t pc);

// Settles one section's lengths, label values, pcs and gaps; returns the
// number of sweeps it took (the last one grows nothing). `trace` is called
// before each sweep.
int VLI_expand_section(section_record *section, void (*trace)(const section_record *));

// After the expansion: the chained branches by address, for chained_branch.
void VLI_index_chains();
