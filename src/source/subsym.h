#pragma once
// Substitution symbols, as the driver and the directive table reach them.
#include <cstdint>
#include <string>

#include "source/ophash.h"

struct instruct;
struct token;

// 1 while identifiers are looked up as substitution symbols.
extern int16_t subsym_expand;
// Column behind the latest replacement in the current line; -1 on a fresh line.
extern int32_t sstr_end_pos;

// One substitution symbol.
struct s_sym {
  s_sym *next;
  s_sym *link;          // the symbol whose value this one shares
  char *value;
  uint32_t line_id;     // inbuf_uid of the line of its last expansion
  uint32_t repeat;      // expansions inside its own replacement text
  std::string name;
};

class SUBSYMTBL {
public:
  s_sym *buckets[HASH_SIZE + 1] = {};
  std::string stack[32];      // names expanded in one chain
  int16_t top = -1;

  s_sym *SUBSYM_find(std::string name, s_sym **out);   // plain look-up
  s_sym *SUBSYM_find(token *tk, s_sym **out);          // with the repeat guard
  int SUBSYM_check(std::string name);                  // chain guard: 1 lets it expand
  void SUBSYM_expand(token *tk, s_sym *entry);
  void SUBSYM_insert(std::string name, std::string value);
  void SUBSYM_remove(std::string name);
  void SUBSYM_clear();
};
extern SUBSYMTBL subsymtbl;

// Entering and clearing the tables: --define values, and the reset for pass 2.
void SUBSYM_define_predef(const std::string &name, const std::string &value);
void SUBSYM_clear_all();   // both the substitution and the register-substitution table

void DP_var(instruct *ir);
void GD_var(instruct *ir);
void DP_asg(instruct *ir);     // .asg, .define
void GD_asg(instruct *ir);
void DP_unasg(instruct *ir);   // .unasg, .undefine
void GD_unasg(instruct *ir);
void DP_eval(instruct *ir);
void GD_eval(instruct *ir);
