// Instruction operands: immediates, expressions and registers with their
// shifts, lanes, status-register fields and CPS flags.
#include <cstdlib>
#include <string_view>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "expr/expr.h"
#include "expr/symbols.h"
#include "source/lexer.h"
#include "target/arm/arch.h"
#include "target/arm/parse.h"
#include "target/arm/tables.h"
#include "target/arm/trg.h"

namespace {

linebuf *here() { return curtk && curtk->line ? curtk->line : curline; }

bool at(uint16_t kind) { return curtk && curtk->kind == kind; }

bool at_separator() { return !curtk || curtk->kind == TK_COMMA || curtk->kind == TK_EOL; }

// The operand takes over a heap result of EXPR_eval.
operand *operand_from(value_record *v, uint16_t kind) {
  operand *op = PRS_new_operand(kind);
  op->value = *v;
  std::free(v);
  return op;
}

operand *fail_value(value_record *v) {
  E_freeval(v);
  PRS_skip_operand();
  return PRS_failed();
}

void set_integer(value_record *v, int64_t n) {
  E_freeparts(v);
  E_clrval(v);
  v->v_val = xi_from_i64(n);
}

// ---- Registers ------------------------------------------------------------------

uint16_t kind_of_register(uint8_t reg_class) {
  switch (reg_class) {
    case REG_CORE: return OP_REGISTER;
    case REG_SINGLE: return OP_SREG;
    case REG_VFP_SYSTEM: return OP_VFPSYS;
    case REG_COPROC: return OP_CPREG;
    case REG_PSR_FIELDS: return OP_PSRF;
    case REG_PSR: return OP_PSR;
    case REG_DOUBLE: return OP_DREG;
    case REG_QUAD: return OP_QREG;
    case REG_M_SYSTEM: return OP_MSYSREG;
    case REG_APSR_FLAGS: return OP_APSRF;
    default: return OP_NONE;
  }
}

// `[x]` or `[]` behind a D register (`[]` behind a Q register); curtk is the '['.
bool lane_index(operand *op) {
  next_token();
  if (at(TK_RBRACKET)) {
    next_token();
    op->op_lane = -1;
    return true;
  }
  if (op->kind == OP_DREG) {
    const expr_parse_state_t es{EXPR_MODE_RELOC, 32, 1};
    value_record *v = EXPR_eval(es);
    const bool ok = v->v_type == VT_ICON && v->v_val >= 0 && v->v_val < 0x8000 && at(TK_RBRACKET);
    if (ok) op->op_lane = static_cast<int16_t>(v->v_val.to_i32());
    E_freeval(v);
    if (ok) {
      next_token();
      return true;
    }
  }
  error(here(), "E0003", "Invalid register indexing. Must be one of Dd[x], Dd[], Qd[]");
  PRS_skip_past(TK_RBRACKET);
  return false;
}

struct shift_name {
  std::string_view text;
  uint8_t type;
};
constexpr shift_name shift_names[] = {
    {"LSL", SHIFT_LSL}, {"ASL", SHIFT_LSL}, {"LSR", SHIFT_LSR},
    {"ASR", SHIFT_ASR}, {"ROR", SHIFT_ROR}, {"RRX", SHIFT_RRX},
};

bool shift_of(const token *tk, uint8_t *type) {
  if (!tk || tk->kind != TK_IDENT || !tk->value.sval) return false;
  const std::string_view name(tk->value.sval);
  if (name.size() != 3) return false;
  for (const shift_name &s : shift_names) {
    if (LEX_upper(name[0]) == s.text[0] && LEX_upper(name[1]) == s.text[1] && LEX_upper(name[2]) == s.text[2]) {
      *type = s.type;
      return true;
    }
  }
  return false;
}

// ---- Status register fields ---------------------------------------------------------

bool starts_nocase(std::string_view text, std::string_view prefix) {
  if (text.size() < prefix.size()) return false;
  for (size_t i = 0; i < prefix.size(); ++i)
    if (LEX_upper(text[i]) != prefix[i]) return false;
  return true;
}

bool equal_nocase(std::string_view a, std::string_view b) { return a.size() == b.size() && starts_nocase(a, b); }

// Field letters behind CPSR_, SPSR_ or APSR_: the mask, or -1 after a message.
int psr_fields(std::string_view letters, bool application) {
  const bool checked = !arm_arch_types.is_cortex_m();
  if (!application) {
    const char *deprecated = nullptr;
    int mask = -1;
    if (equal_nocase(letters, "ALL")) {
      mask = 9;
      deprecated = "Deprecated use of PSR; use \"cf\" instead of \"all\"";
    } else if (equal_nocase(letters, "FLG")) {
      mask = 8;
      deprecated = "Deprecated use of PSR; use \"f\" instead of \"flg\"";
    }
    if (deprecated) {
      if (checked && cur_state == 2) error(here(), "E0004", "%s", deprecated);
      else if (checked) warn(here(), "W0000", "%s", deprecated);
      return mask;
    }
  }
  int mask = 0;
  for (char c : letters) {
    int bit = 0;
    switch (LEX_upper(c)) {
      case 'C': bit = application ? 4 : 1; break;
      case 'X': bit = application ? 0 : 2; break;
      case 'S': bit = application ? 0 : 4; break;
      case 'F': bit = application ? 0 : 8; break;
      case 'N': bit = application ? 1 : 0; break;
      case 'Z': bit = application ? 2 : 0; break;
      case 'V': bit = application ? 8 : 0; break;
      case 'Q': bit = application ? 16 : 0; break;
      case 'G': bit = application ? 32 : 0; break;
      default: break;
    }
    if (!bit) {
      if (!checked && !application) continue;
      error(here(), "E0004", "Illegal PSR field specifier: '%c'", c);
      return -1;
    }
    mask |= bit;
  }
  return mask;
}

// A status register name with fields (CPSR_fc, APSR_nzcvq): the letters are
// cut off the token, so that the expression reads the register alone. The
// mask, -1 after a message, or -2 when the token is no such name.
int cut_psr_fields() {
  if (!at(TK_IDENT) || !curtk->value.sval) return -2;
  const std::string_view name(curtk->value.sval);
  if (name.size() <= 5) return -2;
  std::string_view prefix;
  for (std::string_view p : {"CPSR_", "SPSR_", "APSR_"})
    if (starts_nocase(name, p)) prefix = p;
  if (prefix.empty()) return -2;
  const int mask = psr_fields(name.substr(5), prefix[0] == 'A');
  LEX_set_text(curtk, prefix);
  return mask;
}

// ---- Operand forms --------------------------------------------------------------------

// The CPS letters, as written.
operand *cps_flags() {
  const std::string_view text(curtk->value.sval ? curtk->value.sval : "");
  for (char c : text) {
    if (LEX_upper(c) < 'A' || LEX_upper(c) > 'Z') {
      error(here(), "E0003", "Operand must be a CPS flag concatenation.");
      PRS_skip_operand();
      return PRS_failed();
    }
  }
  operand *op = create_str_operand(curtk->value.sval, OP_CPSFLAGS);
  op->op_lane = -2;
  op->op_shift = SHIFT_NONE;
  PRS_skip_operand();
  return op;
}

// A register named alone, with nothing behind it that an expression could
// take: its value is copied from the symbol, without the expression engine
// and its heap record. Most operands are such registers.
bool plain_register(value_record *v) {
  if (!at(TK_IDENT) || !curtk->value.sval || availtkn || !inbuf || chpos < 0 || ch == '.') return false;
  uint32_t p = static_cast<uint32_t>(chpos);
  while (p < inbuf_len && (inbuf[p] == ' ' || inbuf[p] == '\t')) ++p;
  const char c = p < inbuf_len ? inbuf[p] : '\n';
  const char after = p + 1 < inbuf_len ? inbuf[p + 1] : '\n';
  const bool ends = c == ',' || c == '\n' || c == '\r' || c == ';' || c == ']' || c == '}' || c == '[' ||
                    c == '^' || (c == '!' && after != '=');
  if (!ends) return false;
  const symbol_record *sym = SYM_query(std::string_view(curtk->value.sval));
  if (!sym || sym->sym_value.v_type != VT_REG) return false;
  E_clrval(v);
  E_cpy2val(v, &sym->sym_value);
  next_token();
  return true;
}

// A register operand of the value's class, with its lane or shift; the
// operand takes over the value's parts.
operand *register_operand(value_record *v, int fields) {
  uint8_t reg_class = 0;
  uint32_t number = 0;
  PRS_register_of(*v, &reg_class, &number);
  const uint16_t kind = kind_of_register(reg_class);
  if (kind == OP_NONE) {
    error_internal(0, here(), "Encountered unexpected register type");
    E_freeparts(v);
    PRS_skip_operand();
    return PRS_failed();
  }
  if (kind == OP_CPREG) {
    number &= 15;
    v->v_val = xi_from_uint(number);
  }
  operand *op = PRS_new_operand(kind);
  op->value = *v;
  if (number < 256) op->op_reg = op->op_reg2 = static_cast<uint8_t>(number);
  if (kind == OP_PSRF || kind == OP_APSRF) op->op_mods = static_cast<uint16_t>(fields < 0 ? 0 : fields);
  if ((kind == OP_DREG || kind == OP_QREG) && at(TK_LBRACKET) && !lane_index(op)) {
    IR_free_oprnd(op);
    return PRS_failed();
  }
  if (kind == OP_REGISTER && at(TK_COMMA)) PRS_shift(op, false);
  return op;
}

// An operand without '#': a register (with shift or lane), a status
// register, a coprocessor number, or a target or integer expression.
operand *expression() {
  const int fields = cut_psr_fields();
  value_record reg;
  if (fields == -2 && plain_register(&reg)) return register_operand(&reg, fields);
  const expr_parse_state_t es{EXPR_MODE_ANY, 32, 1};
  value_record *v = EXPR_eval(es);
  if (!v->v_type || fields == -1) return fail_value(v);

  if (v->v_type == VT_REG) {
    reg = *v;
    std::free(v);
    return register_operand(&reg, fields);
  }
  if (v->v_type == VT_COPRID) {
    operand *op = operand_from(v, OP_CPID);
    op->op_reg = op->op_reg2 = static_cast<uint8_t>(op->value.v_val.to_u32() & 0xFF);
    return op;
  }
  if (v->v_type == VT_UNDEFSYM) {
    const symbol_record *sym = v->v_symbol;
    if (pass2 && !v->v_rel && !(sym && SYM_is_global(sym))) error(here(), "E0001", "Undefined symbol");
    return operand_from(v, OP_SYMBOL);
  }
  if (is_int_type(v->v_type) || is_relocatable(v)) return operand_from(v, OP_SYMBOL);
  error(here(), "E0001", "Illegal symbol");
  return fail_value(v);
}

}  // namespace

// ---- Shared pieces --------------------------------------------------------------------

operand *PRS_new_operand(uint16_t kind) {
  operand *op = new_operand(kind);
  op->op_lane = -2;
  op->op_shift = SHIFT_NONE;
  return op;
}

operand *PRS_failed() { return PRS_new_operand(OP_NONE); }

operand *PRS_core_register(uint32_t number) {
  operand *op = PRS_new_operand(OP_REGISTER);
  op->value.v_type = VT_REG;
  op->value.v_known = 1;
  op->value.v_val = xi_from_uint(number);
  op->op_reg = op->op_reg2 = static_cast<uint8_t>(number);
  return op;
}

void PRS_skip_operand() {
  while (!at_separator()) next_token();
}

void PRS_skip_past(uint16_t close) {
  while (curtk && curtk->kind != TK_EOL && curtk->kind != close) next_token();
  if (at(close)) next_token();
}

bool PRS_register_of(const value_record &v, uint8_t *reg_class, uint32_t *number) {
  if (v.v_type != VT_REG) return false;
  // The register's own symbol holds its class; an alias made with .equ
  // points back at it.
  const value_record *own = &v;
  if (v.v_symbol && v.v_symbol->sym_value.v_type == VT_REG) own = &v.v_symbol->sym_value;
  *reg_class = static_cast<uint8_t>(own->v_bits);
  *number = v.v_val.to_u32();
  return true;
}

operand *PRS_absolute(bool floating, bool wide) {
  const expr_parse_state_t es{floating ? EXPR_MODE_FLOAT : EXPR_MODE_RELOC, wide ? 128u : 32u, 1};
  value_record *v = EXPR_eval(es);
  if (!v->v_type) return fail_value(v);
  // In the floating mode the evaluator has refused anything but a float.
  if (floating) return v->v_type == VT_FCON ? operand_from(v, OP_FCON) : fail_value(v);
  switch (v->v_type) {
    case VT_ICON: case VT_MMR:
      return operand_from(v, OP_ICON);
    case VT_FCON:
      return fail_value(v);  // "Illegal floating-point expression" is given
    case VT_COPRID:
      set_integer(v, v->v_val.to_i64());
      return operand_from(v, OP_ICON);
    case VT_REG:
      // #R3 is 3.
      if (v->v_val < 256) {
        set_integer(v, v->v_val.to_i64());
        return operand_from(v, OP_ICON);
      }
      break;
    case VT_UNDEFSYM:
      error(here(), "E0001", "Undefined symbol");
      return fail_value(v);
    default:
      break;
  }
  error(here(), "E0004", "Expression must evaluate to an absolute constant");
  return fail_value(v);
}

void PRS_shift(operand *op, bool in_address) {
  // Look behind the comma; a word that is no shift name gives it back.
  token *comma = curtk;
  get_token();
  uint8_t type = SHIFT_NONE;
  if (!shift_of(curtk, &type)) {
    unget_token(&curtk);
    curtk = comma;
    return;
  }
  LEX_droptkn(comma);
  next_token();
  op->op_shift = type;
  if (type == SHIFT_RRX) {
    if (!in_address) op->kind = OP_SHIFTREGI;
    set_integer(&op->value, 0);
    return;
  }
  if (at(TK_POUND)) {
    next_token();
    operand *amount = PRS_absolute(false, false);
    if (amount->kind != OP_ICON) {
      op->kind = OP_NONE;
    } else {
      E_freeparts(&op->value);
      op->value = amount->value;
      amount->value = value_record{};
      if (!in_address) op->kind = OP_SHIFTREGI;
      if (op->value.v_val == 0) op->op_shift = SHIFT_LSL;  // any shift by 0 is LSL #0
    }
    IR_free_oprnd(amount);
    return;
  }
  const expr_parse_state_t es{EXPR_MODE_ANY, 32, 1};
  value_record *v = EXPR_eval(es);
  uint8_t reg_class = 0;
  uint32_t number = 0;
  if (v->v_type && PRS_register_of(*v, &reg_class, &number) && reg_class == REG_CORE) {
    if (in_address) {
      error(here(), "E0004", "Shift amount cannot be specified with a register");
      op->kind = OP_NONE;
    } else if (number == REG_PC) {
      error(here(), "E0004", "R15 (PC) cannot specify register shift amount");
      op->kind = OP_NONE;
    } else {
      E_freeparts(&op->value);
      op->value = *v;
      v->v_fval = nullptr;
      v->v_str = nullptr;
      v->v_rel = nullptr;
      op->kind = OP_SHIFTREGR;
    }
    E_freeval(v);
    return;
  }
  if (v->v_type) error(here(), "E0004", "Illegal operands for a shifted register");
  E_freeval(v);
  op->kind = OP_NONE;
  PRS_skip_operand();
}

operand *PRS_operand(instruct *ir) {
  if (!curtk || curtk->kind == TK_EOL) return nullptr;
  if (curtk->kind == TK_COMMA) {
    error(here(), "E0005", "Operand missing");
    return PRS_failed();
  }
  const unsigned id = ia_class(ir)->ic_id;
  operand *op = nullptr;
  if (curtk->kind == TK_LBRACKET) {
    op = PRS_address();
  } else if (curtk->kind == TK_LBRACE) {
    op = PRS_register_list();
  } else if (curtk->kind == TK_IDENT && (id == 47 || id == 48 || id == 121 || id == 217)) {
    op = cps_flags();
  } else if (curtk->kind == TK_POUND) {
    next_token();
    op = PRS_absolute((ir->ia_flags & IF_FLT_IMM) != 0, (ir->ia_flags & IF_FLT64_IMM) != 0);
  } else {
    op = expression();
  }
  for (;;) {
    if (at(TK_NOT)) op->op_mods |= MOD_WRITEBACK;
    else if (at(TK_XOR)) op->op_mods |= MOD_CARET;
    else break;
    next_token();
  }
  return op;
}
