// The queue of lines in flight and what is attached to a line.
#include "lexer_fixture.h"
#include "driver/driver.h"
#include "support/fhm.h"

using namespace lex_test;

namespace {

std::vector<std::vector<std::string>> groups() {
  std::vector<std::vector<std::string>> out;
  for (lst_group *g = curlst; g; g = g->next) {
    out.emplace_back();
    for (linebuf *l = g->first; l; l = l->next) out.back().emplace_back(l->text);
  }
  return out;
}

TEST_F(LexerTest, GroupsMoveAndRelease) {
  source("a\nb\nc\n");
  LST_getln();
  LST_getln();
  EXPECT_EQ(groups(), (std::vector<std::vector<std::string>>{{"a\n", "b\n"}}));
  const linebuf *first = curlst->first;  // each line carries its place
  EXPECT_EQ(first->text, first->source_text);
  EXPECT_EQ(first->line_number, 1u);
  EXPECT_EQ(first->next->line_number, 2u);
  EXPECT_EQ(first->copy_letter, ' ');
  EXPECT_STREQ(first->file, "main.asm");
  EXPECT_EQ(first->flags, 31);
  EXPECT_EQ(first->length, 2u);
  LST_mvlnbuf(LST_FIRST);  // the line read ahead waits in a group of its own
  EXPECT_EQ(groups(), (std::vector<std::vector<std::string>>{{"a\n"}, {"b\n"}}));
  LST_getln();
  EXPECT_EQ(groups(), (std::vector<std::vector<std::string>>{{"a\n"}, {"b\n", "c\n"}}));
  LST_dump();
  EXPECT_EQ(groups(), (std::vector<std::vector<std::string>>{{"b\n", "c\n"}}));
  linebuf *c = LST_detach_line(LST_NEWGROUP);
  ASSERT_NE(c, nullptr);
  EXPECT_STREQ(c->text, "c\n");
  LST_attach_line(c, LST_NEWGROUP);
  EXPECT_EQ(groups(), (std::vector<std::vector<std::string>>{{"b\n"}, {"c\n"}}));
  LST_getln();
  EXPECT_EQ(endfile, 1);
  LST_clear();
  EXPECT_EQ(curlst, nullptr);
  EXPECT_EQ(lastlst, nullptr);
  EXPECT_EQ(curline, nullptr);
  EXPECT_EQ(inbuf, nullptr);
}

TEST_F(LexerTest, MessagesAndObjectBytes) {
  source("x\n");
  LST_getln();
  linebuf *line = curline;
  for (const char *m : {"one", "two", "three", "four"}) LST_add_emsg(line, m);
  EXPECT_STREQ(line->messages[0], "one");
  EXPECT_STREQ(line->messages[2], "three");
  EXPECT_EQ(messages().size(), 3u);

  unsigned char word[4] = {0xE1, 0xA0, 0x00, 0x01};
  LST_object(line, 0x100, word, 0, 4);
  EXPECT_EQ(line->object, nullptr);  // no listing, no object fields
  ASSY_LST = fhm_open("/dev/null", "w");
  LST_object(line, 0x100, word, 0, 4);
  LST_object(line, 0x104, nullptr, '!', 2);
  unsigned char two[2] = {0x12, 0x34};
  LST_object(line, 0x108, two, 'D', 2);
  ASSERT_NE(line->object, nullptr);
  EXPECT_EQ(line->object->address, 0x100u);
  EXPECT_EQ(line->object->value, 0xE1A00001u);
  EXPECT_EQ(line->object->mark, ' ');
  EXPECT_EQ(line->object->count, 4);
  ASSERT_NE(line->object->next, nullptr);
  EXPECT_EQ(line->object->next->value, 0u);
  EXPECT_EQ(line->object->next->mark, '!');
  ASSERT_NE(line->object->next->next, nullptr);
  EXPECT_EQ(line->object->next->next->value, 0x1234u);
  fhm_close(ASSY_LST);
  ASSY_LST = nullptr;
}

TEST_F(LexerTest, ExpandRewritesTheLineForTheLexer) {
  source(" ab cd ef\n");
  next_token();  // ab
  next_token();  // cd, columns 4..6
  LST_expand(4, 6, "xyz zz", 3);
  ASSERT_NE(curline->expanded_text, nullptr);
  EXPECT_STREQ(curline->expanded_text, " ab xyz ef\n");
  EXPECT_STREQ(curline->source_text, " ab cd ef\n");
  EXPECT_EQ(curline->length, 11u);
  EXPECT_STREQ(next_token()->value.sval, "xyz");
  EXPECT_STREQ(next_token()->value.sval, "ef");
  // A second change works on the changed text.
  LST_expand(0, 1, "q", 1);
  EXPECT_STREQ(curline->expanded_text, "qab xyz ef\n");
}

TEST_F(LexerTest, FreedLineIsNoPendingLabelsAnyMore) {
  source("lbl\n");
  next_token();
  LBL_save();
  ASSERT_NE(LBL_current, nullptr);
  EXPECT_EQ(LBL_current->line, curline);
  LST_dump();
  EXPECT_EQ(LBL_current->line, nullptr);
  LBL_free();
}

}  // namespace
