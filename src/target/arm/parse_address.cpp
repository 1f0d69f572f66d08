// Bracketed addresses and braced register lists.
#include <cstdlib>
#include <string_view>

#include "driver/diag.h"
#include "driver/pipeline.h"
#include "expr/expr.h"
#include "expr/symbols.h"
#include "source/lexer.h"
#include "target/arm/parse.h"
#include "target/arm/tables.h"

namespace {

linebuf *here() { return curtk && curtk->line ? curtk->line : curline; }

bool at(uint16_t kind) { return curtk && curtk->kind == kind; }

// What is left of a failed address: the rest of the brackets and a
// post-indexed part behind them.
operand *fail_address() {
  PRS_skip_past(TK_RBRACKET);
  if (at(TK_COMMA)) {
    next_token();
    PRS_skip_operand();
  }
  return PRS_failed();
}

// `@16` .. `@256` behind the base: the alignment code of the statement.
bool alignment() {
  next_token();
  uint32_t code = 0;
  if (at(TK_ICON)) {
    switch (curtk->value.ival.to_u32()) {
      case 16: code = 1; break;
      case 32: code = 2; break;
      case 64: code = 4; break;
      case 128: code = 8; break;
      case 256: code = 16; break;
      default: break;
    }
    if (curtk->value.ival.size() > 32) code = 0;
  }
  if (!code) {
    error(here(), "E0002", "Illegal Alignment");
    return false;
  }
  cur_suffixes.align = code;
  next_token();
  return true;
}

// The offset of an address behind its comma: an option in braces, an
// immediate, or a register with an optional shift. `pre` and `post` are the
// kinds for an immediate; the register kinds follow them.
bool address_offset(operand *op, uint16_t immediate_kind, uint16_t register_kind) {
  if (at(TK_LBRACE)) {
    next_token();
    if (at(TK_POUND)) next_token();
    operand *option = PRS_absolute(false, false);
    if (option->kind != OP_ICON) {
      IR_free_oprnd(option);
      return false;
    }
    op->value = option->value;
    option->value = value_record{};
    IR_free_oprnd(option);
    op->kind = OP_INDOPT;
    if (at(TK_RBRACE)) next_token();
    else warn(here(), "W0000", "Missing right brace, one assumed");
    return true;
  }
  if (at(TK_POUND)) {
    next_token();
    operand *offset = PRS_absolute(false, false);
    if (offset->kind != OP_ICON) {
      IR_free_oprnd(offset);
      return false;
    }
    op->value = offset->value;
    offset->value = value_record{};
    IR_free_oprnd(offset);
    op->kind = immediate_kind;
    return true;
  }
  if (at(TK_PLUS) || at(TK_MINUS)) {
    op->op_neg = at(TK_MINUS) ? 1 : 0;
    next_token();
  }
  const expr_parse_state_t es{EXPR_MODE_ANY, 32, 1};
  value_record *v = EXPR_eval(es);
  uint8_t reg_class = 0;
  uint32_t number = 0;
  const bool core = v->v_type && PRS_register_of(*v, &reg_class, &number) && reg_class == REG_CORE;
  const bool evaluated = v->v_type != 0;
  E_freeval(v);
  if (!core) {
    if (evaluated) error(here(), "E0003", "Invalid shift register");
    return false;
  }
  if (number == REG_PC) {
    error(here(), "E0004", "Register offset (Rm) cannot be R15 (PC)");
    return false;
  }
  op->kind = register_kind;
  op->op_reg2 = static_cast<uint8_t>(number);
  if (at(TK_COMMA)) PRS_shift(op, true);
  return op->kind != OP_NONE;
}

// ---- Register lists ---------------------------------------------------------------

// A register symbol named by curtk.
bool list_register(uint8_t *reg_class, uint32_t *number) {
  if (!at(TK_IDENT) || !curtk->value.sval) return false;
  const symbol_record *sym = SYM_query(std::string_view(curtk->value.sval));
  return sym && PRS_register_of(sym->sym_value, reg_class, number);
}

// `[x]` or `[]` behind an element of a D or Q list.
bool list_lane(int16_t *lane) {
  next_token();
  if (at(TK_RBRACKET)) {
    *lane = -1;
    next_token();
    return true;
  }
  if (at(TK_ICON) && curtk->value.ival < 0x8000) {
    *lane = static_cast<int16_t>(curtk->value.ival.to_i32());
    next_token();
    if (at(TK_RBRACKET)) {
      next_token();
      return true;
    }
  }
  return false;
}

operand *fail_list(const char *text) {
  error(here(), "E0003", "%s", text);
  PRS_skip_past(TK_RBRACE);
  return PRS_failed();
}

}  // namespace

operand *PRS_address() {
  next_token();
  const expr_parse_state_t es{EXPR_MODE_ANY, 32, 1};
  value_record *v = EXPR_eval(es);
  uint8_t reg_class = 0;
  uint32_t base = 0;
  const bool core = v->v_type && PRS_register_of(*v, &reg_class, &base) && reg_class == REG_CORE;
  const bool evaluated = v->v_type != 0;
  E_freeval(v);
  if (!core) {
    if (evaluated) error(here(), "E0003", "Invalid base register");
    return fail_address();
  }
  if (at(TK_ATSIGN) && !alignment()) return fail_address();

  operand *op = PRS_new_operand(OP_INDIRECT);
  op->op_reg = static_cast<uint8_t>(base);
  op->value.v_type = VT_ICON;
  op->value.v_known = 1;
  if (at(TK_RBRACKET)) {
    next_token();
    if (!at(TK_COMMA)) return op;
    next_token();
    if (address_offset(op, OP_INDPOSTE, OP_INDPOSTS)) return op;
  } else if (at(TK_COMMA)) {
    next_token();
    if (address_offset(op, OP_INDPREE, OP_INDPRES)) {
      if (at(TK_RBRACKET)) next_token();
      else warn(here(), "W0000", "Missing right bracket, one assumed");
      return op;
    }
  } else {
    warn(here(), "W0000", "Missing right bracket, one assumed");
    return op;
  }
  IR_free_oprnd(op);
  return fail_address();
}

operand *PRS_register_list() {
  next_token();
  operand *op = PRS_new_operand(OP_REGLIST);
  op->value.v_type = VT_ICON;
  op->value.v_known = 1;
  if (at(TK_RBRACE)) {
    warn(here(), "W0000", "Register list is empty");
    next_token();
    return op;
  }
  uint8_t list_class = 0;
  bool first = true;
  INT128 mask{};
  for (;;) {
    uint8_t reg_class = 0;
    uint32_t low = 0;
    if (!list_register(&reg_class, &low) || (!first && reg_class != list_class) ||
        (first && reg_class != REG_CORE && reg_class != REG_SINGLE && reg_class != REG_DOUBLE &&
         reg_class != REG_QUAD)) {
      IR_free_oprnd(op);
      return fail_list("Invalid register");
    }
    next_token();
    const bool lanes = reg_class == REG_DOUBLE || reg_class == REG_QUAD;
    int16_t lane = -2;
    if (lanes && at(TK_LBRACKET) && !list_lane(&lane)) {
      IR_free_oprnd(op);
      return fail_list("Invalid register list");
    }
    uint32_t high = low;
    if (at(TK_MINUS)) {
      next_token();
      uint8_t high_class = 0;
      if (!list_register(&high_class, &high) || high_class != reg_class) {
        IR_free_oprnd(op);
        return fail_list("Invalid register");
      }
      next_token();
      if (lanes && at(TK_LBRACKET) && !list_lane(&lane)) {
        IR_free_oprnd(op);
        return fail_list("Invalid register list");
      }
      if (high < low) {
        IR_free_oprnd(op);
        return fail_list("Invalid register range");
      }
    }
    if (first) {
      list_class = reg_class;
      op->kind = reg_class == REG_DOUBLE ? OP_DLIST : reg_class == REG_QUAD ? OP_QLIST : OP_REGLIST;
      op->op_reg = static_cast<uint8_t>(low);
      first = false;
    }
    if (op->op_lane == -2) op->op_lane = lane;
    op->op_reg2 = static_cast<uint8_t>(high);
    for (uint32_t r = low; r <= high && r < 128; ++r) mask |= xi_from_int(1) << static_cast<int>(r);
    if (at(TK_COMMA)) {
      next_token();
      continue;
    }
    if (at(TK_RBRACE)) {
      next_token();
      break;
    }
    IR_free_oprnd(op);
    return fail_list("Invalid register list");
  }
  op->value.v_val = mask;
  return op;
}
