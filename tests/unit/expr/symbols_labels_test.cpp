// Pending labels and their definition in both passes; where a label ends up
// in the object is checked end to end (tests/asm/symbols).
#include "symbols_fixture.h"
#include "driver/driver.h"
#include "support/fhm.h"

#include "directives/sections.h"

#include "source/lexer.h"

namespace {

using Labels = SymbolsTest;

section_record text_record{}, data_record{};
section_record *const text_scn = &text_record;
section_record *const data_scn = &data_record;

std::vector<std::string> pending_names() {
  std::vector<std::string> out;
  for (pending_label *p = LBL_current; p; p = p->next) out.push_back(p->name);
  return out;
}

TEST_F(Labels, FlushbufKeepsOnlyThisLinesLabel) {
  curseg = text_scn;
  test_line l1(1), l2(2), l3(3);
  LBL_save_name("old", &l1);
  LBL_save_name("mine", &l2);
  curpc = 4;
  LBL_flushbuf(&l2);
  EXPECT_EQ(pending_names(), std::vector<std::string>{"mine"});
  EXPECT_EQ(SYM_query("old")->sym_value.v_val, xi_from_int(4));
  EXPECT_EQ(SYM_query("mine"), nullptr);

  curseg = data_scn;  // a directive moved on to another section
  curpc = 0;
  LBL_flushbuf(&l3);
  EXPECT_EQ(LBL_current, nullptr);
  EXPECT_EQ(SYM_query("mine")->sym_section, data_scn);
}

TEST_F(Labels, DroppingPendingLabels) {
  test_line ln;
  for (const char *n : {"a", "$C$DW$1", "b", "$C$DW$2", "c"}) LBL_save_name(n, &ln);
  LBL_free_prefix("$C$DW$");
  EXPECT_EQ(pending_names(), (std::vector<std::string>{"c", "b", "a"}));
  LBL_free_current();
  EXPECT_EQ(pending_names(), (std::vector<std::string>{"b", "a"}));
  LBL_free();
  EXPECT_EQ(LBL_current, nullptr);
  LBL_free_current();  // empty list: nothing to do
  LBL_define();
  EXPECT_EQ(SYM_query("a"), nullptr);
}

TEST_F(Labels, PassConflictIsFatal) {
  // Another address or another section in pass 2.
  for (bool move_section : {false, true}) {
    SCOPED_TRACE(move_section);
    SYM_init();
    pass1 = 1, pass2 = 0, curpc = 0;
    curseg = text_scn;
    test_line ln;
    LBL_save_name("moved", &ln);
    LBL_define();
    start_pass2();
    if (move_section) curseg = data_scn;
    else curpc = 2;
    LBL_save_name("moved", &ln);
    EXPECT_EXIT(LBL_define(), ::testing::ExitedWithCode(1), "moved defined differently in each pass");
    LBL_free();
  }
}

TEST_F(Labels, KeywordAsLabel) {
  const sym_init rows[] = {{"KW", 1, VT_KEYWORD}, {nullptr, 0, 0}};
  init_keywords(rows);
  test_line ln;
  start_pass2();
  LBL_save_name("KW", &ln);
  std::string out = screen([] { LBL_define(); });
  EXPECT_TRUE(shown(out, "E0300", "KW is a reserved identifier")) << out;
}

TEST_F(Labels, LabelAloneOnItsLineShowsItsAddress) {
  ASSY_LST = fhm_open("/dev/null", "w");  // object fields are kept for a listing only
  curseg = text_scn;
  test_line alone(1), with_statement(2);
  queue({&alone, &with_statement});
  auto define_both = [&] {
    curpc = 16;
    LBL_save_name("alone", &alone);
    LBL_save_name("stmt", &with_statement);
    with_statement.flags &= static_cast<uint16_t>(~LNF_LABEL);  // IR_build saw a statement
    LBL_define();
  };
  define_both();
  EXPECT_EQ(alone.object, nullptr);  // pass 1 lists nothing
  start_pass2();
  define_both();
  ASSERT_NE(alone.object, nullptr);
  EXPECT_EQ(alone.object->address, 16u);
  EXPECT_EQ(alone.object->count, 4);
  EXPECT_EQ(alone.flags & LNF_OBJECT, 0);
  EXPECT_EQ(with_statement.object, nullptr);
  EXPECT_NE(with_statement.flags & LNF_OBJECT, 0);
  fhm_close(ASSY_LST);
  ASSY_LST = nullptr;
}

TEST_F(Labels, ReleasedLineIsNotTouched) {
  // The statement after the label let the listing release the label's line;
  // the address then goes to no line, and a message to the current line.
  curseg = text_scn;
  test_line released(1), current(2);
  queue({&current});
  curline = &current;
  start_pass2();
  released.flags |= LNF_LABEL;
  LBL_save_name("gone", &released);
  std::string out = screen([] { LBL_define(); });
  EXPECT_EQ(released.object, nullptr);
  EXPECT_EQ(current.object, nullptr);
  EXPECT_TRUE(shown(out, "E0300", "gone is operand to both .ref and .def")) << out;
  curline = nullptr;
}

TEST_F(Labels, LabelKeepsTheCodeState) {
  test_line ln;
  cur_state = 2;
  LBL_save_name("thumb", &ln);
  LBL_define();
  EXPECT_EQ(SYM_query("thumb")->sym_state, 2u);
}

}  // namespace
