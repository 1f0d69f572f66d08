#pragma once
// Structure, union and enumeration members as tags and the dot operator see them.
#include <cstdint>

struct membrec {
  membrec *mb_next;       // next member in order of definition
  uint32_t mb_offset;     // bytes
  uint32_t mb_size;       // bytes
  membrec *mb_members;    // members of a nested or tagged member, or null
  uint8_t mb_flags;       // goes to v_flags when the dot operator selects the member
  uint16_t mb_type;       // dir_types code, 128 none, 9 nested in a structure, 8 in a union
  char mb_name[1];        // the name, allocated with the record to its full length
};
