#pragma once
// The table of built-in functions that the opcode hash enters.
#include <cstdint>

// One built-in function; fn is called as its kind says.
struct bifcn_oprec {
  const char *name;   // upper case, "$$..."
  void (*fn)();
  uint32_t kind;
};

// Ends in a row with a null name.
extern const bifcn_oprec built_in_fcns[];
