// TRG_parse: one machine-instruction statement from its tokens to an
// instruct: row and slot, suffix letters, the IT checks, the width
// qualifiers, IT and SETEND, the operands and the rewrites behind them.
#include <algorithm>
#include <cstring>
#include <string_view>

#include "driver/diag.h"
#include "driver/pipeline.h"
#include "source/lexer.h"
#include "source/ophash.h"
#include "target/arm/arch.h"
#include "target/arm/parse.h"
#include "target/arm/trg.h"

// Set while the parser reads an operand that the statement modifies, for the
// cross-reference. No instruction operand names a symbol that it modifies
// (stores and write-back modify registers, which are not cross-referenced),
// so it stays clear.
uint8_t modified_op = 0;

namespace {

bool at(uint16_t kind) { return curtk && curtk->kind == kind; }

bool at_word(std::string_view word) {
  if (!at(TK_IDENT) || !curtk->value.sval) return false;
  const std::string_view text(curtk->value.sval);
  if (text.size() != word.size()) return false;
  for (size_t i = 0; i < text.size(); ++i)
    if (LEX_upper(text[i]) != word[i]) return false;
  return true;
}

bool is_named(const mnemonic_row *row, const char *name) { return std::strcmp(row->name, name) == 0; }

// The tokens of the operand field up to a comma or the line end, at most
// ten, each cut to `each` characters, joined in upper case into buf.
std::string_view joined_operand_text(char *buf, size_t cap, size_t each) {
  size_t n = 0;
  for (int count = 0; count < 10 && curtk && curtk->kind != TK_EOL && curtk->kind != TK_COMMA; ++count) {
    std::string_view text;
    if ((curtk->kind == TK_IDENT || curtk->kind == TK_SCON) && curtk->value.sval) {
      text = curtk->value.sval;
    } else if (inbuf && curtk->column >= 0 && static_cast<uint32_t>(curtk->column) < inbuf_len) {
      const size_t start = static_cast<size_t>(curtk->column);
      text = std::string_view(inbuf + start, std::min<size_t>(curtk->length, inbuf_len - start));
    }
    text = text.substr(0, each);
    for (char c : text)
      if (n + 1 < cap) buf[n++] = LEX_upper(c);
    next_token();
  }
  buf[n] = '\0';
  return std::string_view(buf, n);
}

// Inside an IT block the condition must be the block's; no condition is
// encoded there. Outside one, only branches carry a condition.
void it_condition_check(instruct *ir) {
  const mnemonic_row *row = ia_row(ir);
  if (cur_it_string[0] == '\0') {
    if (ir->ia_cond != COND_AL && !is_named(row, "B") && !is_named(row, "BQ") && !is_named(row, "BR") &&
        !is_named(row, "BT") && !is_named(row, "CZB"))
      error(ir->line, "E0002", "Condition codes not allowed outside of IT blocks in Thumb.");
    return;
  }
  const char slot = cur_it_string[0];
  if (slot != 'T' && slot != 'E') return;
  const uint8_t expected = slot == 'T' ? cur_it_cc : cond_reverse(cur_it_cc);
  if (ir->ia_cond != expected) {
    if (ir->ia_cond == COND_AL) warn(ir->line, "W0004", "Missing condition code inside of IT block");
    else warn(ir->line, "W0004", "Incorrect condition code inside of IT block");
  }
  ir->ia_flags &= ~IF_COND;
}

// `.W` and `.N` behind the mnemonic.
void width_qualifier(instruct *ir) {
  if (cur_state != 2 || !arm_arch_types.is_t2_capable()) return;
  const mnemonic_row *row = ia_row(ir);
  if (at_word(".W")) {
    next_token();
    ir->ia_flags |= IF_WIDE;
    if (ual_mode) return;
    // Old syntax in the Thumb-2 state reads the 16-bit slot first.
    if (!row->slot[STATE_THUMB2].cls) {
      error(ir->line, "E0002", "Instruction doesn't have thumb2 encoding.");
      return;
    }
    encode_state = STATE_THUMB2;
    if ((ir->ia_flags & IF_COND) && !is_named(row, "B"))
      error(ir->line, "E0002", "Condition codes not allowed in thumb2 state encoding.");
    return;
  }
  if (!ual_mode || !at_word(".N")) return;
  next_token();
  if (row->slot[encode_state].opcode < 0x10000) return;
  if (!row->slot[STATE_THUMB16].cls || ((ir->ia_flags & IF_LINK) && !(ir->ia_flags & IF_X)))
    error(ir->line, "E0800", "Instruction does not have narrow encoding");
  else
    encode_state = STATE_THUMB16;
}

void it_statement(instruct *ir) {
  if (cur_it_string[0] == '\0') std::strcpy(cur_it_string, "IT");
  char buf[112];
  const std::string_view text = joined_operand_text(buf, sizeof buf, 10);
  uint8_t cond = 0;
  if (!PRS_condition(text, &cond)) {
    error(ir->line, "E0003", "Empty or Invalid condition code");
    cond = COND_NV;
  }
  ir->ia_cond = cond;
  cur_it_cc = cond;
}

void setend_statement(instruct *ir) {
  char buf[40];
  const std::string_view text = joined_operand_text(buf, sizeof buf, 3);
  if (text == "BE") ir->ia_flags |= IF_BE;
  else if (text == "LE") ir->ia_flags |= IF_LE;
  else error(ir->line, "E0003", "Invalid operand. Must be BE or LE.");
}

void operands(instruct *ir) {
  for (short n = 0; n < IR_MAX_SLOTS;) {
    operand *op = PRS_operand(ir);
    if (!op) return;
    IR_add_oprnd(ir, n++, op);
    if (!at(TK_COMMA)) return;
    next_token();
  }
}

}  // namespace

namespace {
constexpr unsigned IC_PARALLEL_ADDSUB = 35;
}

instruct *TRG_parse() {
  linebuf *line = curtk && curtk->line ? curtk->line : curline;
  if (!curtk || curtk->kind != IR_MNEMONIC || !curtk->value.op) {
    error(line, "E0002", "Illegal mnemonic specified");
    LEX_skip_to_eol();
    return nullptr;
  }
  const mnemonic_row *row = curtk->value.op->mnemonic();
  instruct *ir = IR_alloc(IR_MNEMONIC, row, line);
  ir->ia_cond = COND_AL;
  ir->ia_errors = num_errors;
  const inst_class *cls = ia_class(ir);
  const bool typed = PRS_has_type_suffixes(cls);
  if (typed) {
    if (cur_suffixes.types[0].type == 0x8) ir->ia_flags |= cls->ic_allowed & IF_FLT_IMM;
    if (cur_suffixes.types[0].size == 0x10) ir->ia_flags |= cls->ic_allowed & IF_FLT64_IMM;
  }
  next_token();

  if (at(TK_OPCODE_REST)) {
    // Suffix letters are few: a longer rest is invalid anyway and keeps
    // its tail for the warning.
    char buf[48];
    const std::string_view rest(curtk->value.sval ? curtk->value.sval : "");
    const size_t n = std::min(rest.size(), sizeof buf);
    for (size_t i = 0; i < n; ++i) buf[i] = LEX_upper(rest[i]);
    PRS_suffix(ir, std::string_view(buf, n));
    next_token();
  }
  if (ual_mode && cur_state == 2) it_condition_check(ir);
  width_qualifier(ir);

  // Only the parallel add/subtract rows have such names; the name search is
  // not worth running for every statement.
  if (cls->ic_id == IC_PARALLEL_ADDSUB && mext_paddsub_instruction(row->name))
    std::memcpy(ir->ia_prefix, cur_mext_prefix, sizeof ir->ia_prefix);
  if (mext_szea_add_instruction(row->name)) ir->ia_flags |= IF_SZEA;

  if (cls->ic_id == 136) {
    it_statement(ir);
  } else {
    if (typed && cur_state == 2 && row->slot[STATE_THUMB2].cls) encode_state = STATE_THUMB2;
    if (ia_class(ir)->ic_id == 33) {
      setend_statement(ir);
    } else {
      operands(ir);
      PRS_rewrites(ir);
    }
  }
  skip_to_expected_eol(ir->line);
  PRS_unified_forms(ir);
  return ir;
}
