// Operand records and the lists of a statement's slots.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "driver/driver.h"
#include "pipeline_fixture.h"

namespace {

// The values of a slot's list, checking the back links on the way.
std::vector<int> slot_values(const instruct *ir, int slot) {
  std::vector<int> out;
  const operand *prev = nullptr;
  for (const operand *op = ir->oprnds[slot]; op; op = op->next) {
    EXPECT_EQ(op->prev, prev);
    out.push_back(int_of(op));
    prev = op;
  }
  return out;
}

struct Statement {
  instruct *ir = IR_alloc(IR_DIRECTIVE, nullptr, nullptr);
  ~Statement() { IR_free(ir); }
};

}  // namespace

TEST(PipelineOperands, AddKeepsOrderPerSlot) {
  Statement s;
  IR_add_oprnd(s.ir, 0, create_icon_operand(1));
  IR_add_oprnd(s.ir, 3, create_icon_operand(-7));
  IR_add_oprnd(s.ir, 0, nullptr);  // ignored
  IR_add_oprnd(s.ir, 0, create_icon_operand(2));
  IR_add_oprnd(s.ir, 9, create_icon_operand(9));
  IR_add_oprnd(s.ir, 0, create_icon_operand(3));
  EXPECT_EQ(slot_values(s.ir, 0), (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(slot_values(s.ir, 3), (std::vector<int>{-7}));
  EXPECT_EQ(slot_values(s.ir, 9), (std::vector<int>{9}));
  for (int slot : {1, 2, 4, 5, 6, 7, 8}) EXPECT_EQ(s.ir->oprnds[slot], nullptr);
}

TEST(PipelineOperands, Remove) {
  // Remove the operand at `index` of a list 10,20,30,40 through a pointer to it;
  // the pointer then stands on `after` (the next one, else the previous one).
  struct Case {
    int index;
    std::vector<int> left;
    int after;  // 0: null
  } cases[] = {{0, {20, 30, 40}, 20}, {1, {10, 30, 40}, 30}, {3, {10, 20, 30}, 30}};
  for (const Case &c : cases) {
    Statement s;
    for (int v : {10, 20, 30, 40}) IR_add_oprnd(s.ir, 2, create_icon_operand(v));
    operand *cursor = s.ir->oprnds[2];
    for (int i = 0; i < c.index; ++i) cursor = cursor->next;
    operand **where = c.index == 0 ? &s.ir->oprnds[2] : &cursor;
    IR_rm_oprnd(where);
    ASSERT_NE(*where, nullptr);
    EXPECT_EQ(int_of(*where), c.after);
    EXPECT_EQ(slot_values(s.ir, 2), c.left) << "index " << c.index;
  }
  // The only operand: the slot empties; then there is nothing to remove.
  Statement s;
  IR_add_oprnd(s.ir, 0, create_icon_operand(5));
  IR_rm_oprnd(&s.ir->oprnds[0]);
  EXPECT_EQ(s.ir->oprnds[0], nullptr);
  IR_rm_oprnd(&s.ir->oprnds[0]);
  IR_rm_oprnd(nullptr);
}

TEST(PipelineOperands, CreatedValues) {
  operand *i = create_icon_operand(-2);
  EXPECT_EQ(i->kind, OP_ICON);
  EXPECT_EQ(int_of(i), -2);
  EXPECT_EQ(i->value.v_val.b[0], 0xFF);  // sign-extended to 128 bits

  operand *s = create_str_operand("name", OP_SSNAME);
  EXPECT_EQ(s->kind, OP_SSNAME);
  EXPECT_STREQ(s->value.v_str, "name");

  // A duplicate is a single operand with strings of its own.
  s->next = i;
  operand *d = duplicate_operand(s);
  s->next = nullptr;
  EXPECT_EQ(d->next, nullptr);
  EXPECT_EQ(d->prev, nullptr);
  EXPECT_STREQ(d->value.v_str, "name");
  EXPECT_NE(d->value.v_str, s->value.v_str);
  // Freeing releases the whole list (ASan sees any leak or double free).
  s->next = i;
  i->prev = s;
  IR_free_oprnd(s);
  IR_free_oprnd(d);
  IR_free_oprnd(nullptr);
}

TEST(PipelineOperands, MisuseIsAnInternalError) {
  pass1 = 1;
  pass2 = 0;
  EXPECT_EXIT(IR_add_oprnd(nullptr, 0, create_icon_operand(1)), ::testing::ExitedWithCode(1),
              "Adding operand to NULL IR!");
  Statement s;
  EXPECT_EXIT(IR_add_oprnd(s.ir, 10, create_icon_operand(1)), ::testing::ExitedWithCode(1),
              "Too many operands");
}
