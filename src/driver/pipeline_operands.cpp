// Operand records and the doubly linked lists of a statement's slots.
#include <cstdlib>
#include <cstring>

#include "driver/diag.h"
#include "driver/pipeline.h"
#include "expr/expr.h"
#include "expr/int128.h"
#include "expr/symbols.h"
#include "source/lexer.h"
#include "support/memory.h"

namespace {

char *copy_text(const char *text) {
  const size_t n = text ? strlen(text) : 0;
  auto *s = static_cast<char *>(safemalloc(n + 1));
  if (n) memcpy(s, text, n);
  s[n] = '\0';
  return s;
}

// Released operands, kept for reuse: every statement makes some.
operand *spare_operands = nullptr;

operand *alloc_operand() {
  operand *op = spare_operands;
  if (!op) return static_cast<operand *>(safecalloc(1, sizeof(operand)));
  spare_operands = op->next;
  std::memset(static_cast<void *>(op), 0, sizeof *op);
  return op;
}

}  // namespace

operand *new_operand(uint16_t kind) {
  operand *op = alloc_operand();
  op->kind = kind;
  return op;
}

operand *create_icon_operand(int value) {
  operand *op = new_operand(OP_ICON);
  op->value.v_type = VT_ICON;
  op->value.v_known = 1;
  op->value.v_bits = 32;
  XI_itox(value, op->value.v_val.b);
  return op;
}

operand *create_str_operand(const char *text, unsigned short kind) {
  operand *op = new_operand(kind);
  op->value.v_type = VT_STRING;
  op->value.v_known = 1;
  op->value.v_str = copy_text(text);
  return op;
}

operand *create_reg_operand(const char *name, unsigned short kind) {
  symbol_record *sym = SYM_query(name);
  if (!sym || sym->sym_value.v_type != VT_REG) {
    error(curline, "E0003", "Operand %s not defined", name ? name : "");
    return nullptr;
  }
  operand *op = new_operand(kind);
  E_cpy2val(&op->value, &sym->sym_value);
  return op;
}

operand *duplicate_operand(operand *src) {
  if (!src) return nullptr;
  operand *op = alloc_operand();
  *op = *src;
  E_cpy2val(&op->value, &src->value);
  op->next = nullptr;
  op->prev = nullptr;
  return op;
}

void IR_add_oprnd(instruct *ir, short slot, operand *op) {
  if (!op) return;
  if (!ir) {
    error_internal(1, curline, "Adding operand to NULL IR!");
    IR_free_oprnd(op);
    return;
  }
  if (slot < 0 || slot >= IR_MAX_SLOTS) {
    error_internal(1, ir->line, "Too many operands");
    IR_free_oprnd(op);
    return;
  }
  operand *tail = ir->oprnds[slot];
  if (!tail) {
    op->prev = nullptr;
    ir->oprnds[slot] = op;
    return;
  }
  while (tail->next) tail = tail->next;
  tail->next = op;
  op->prev = tail;
}

void IR_append_oprnd(instruct *ir, short slot, operand **tail, operand *op) {
  if (!op) return;
  if (!*tail || !ir) {
    IR_add_oprnd(ir, slot, op);
    if (ir) *tail = op;
    return;
  }
  (*tail)->next = op;
  op->prev = *tail;
  *tail = op;
}

void IR_rm_oprnd(operand **where) {
  if (!where || !*where) return;
  operand *op = *where;
  if (op->prev) op->prev->next = op->next;
  if (op->next) op->next->prev = op->prev;
  *where = op->next ? op->next : op->prev;
  op->next = nullptr;
  op->prev = nullptr;
  IR_free_oprnd(op);
}

void IR_free_oprnd(operand *op) {
  while (op) {
    operand *next = op->next;
    E_freeparts(&op->value);
    op->next = spare_operands;
    spare_operands = op;
    op = next;
  }
}
