#pragma once
// The instruction output record, embedded in each statement.
#include <cstdint>

// A statement builds up to 32 bits here before they go to the section.
struct IOR_STRUCT {
  uint8_t ior_data[4];
  uint16_t ior_length;   // bits so far, at most 32
  char ior_relch[1];     // listing mark of each 32-bit word, blank by default
};
