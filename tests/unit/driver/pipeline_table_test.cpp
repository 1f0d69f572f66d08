// The directive tables: every row usable, names unique, and rows that share
// an id share their parse handler. Which handler a row has is checked end to
// end by the directives themselves.
#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <set>
#include <string>

#include "driver/directive_ids.h"
#include "driver/pipeline.h"

TEST(PipelineTable, RowsAreComplete) {
  std::set<std::string> seen;
  std::map<int, const dir_oprec *> first;
  int count = 0;
  for (const dir_oprec *t : {gen_direct, trg_direct}) {
    for (int i = 0; t[i].name; ++i, ++count) {
      const dir_oprec &r = t[i];
      const std::string name = r.name;
      SCOPED_TRACE(name);
      EXPECT_TRUE(seen.insert(name).second) << "twice";
      ASSERT_GE(name.size(), 2u);
      EXPECT_EQ(name[0], '.');
      for (char c : name) EXPECT_FALSE(islower(static_cast<unsigned char>(c)));
      EXPECT_TRUE(r.parse && r.pass1 && r.pass2);
      EXPECT_GT(r.id, 0);
      if (t != gen_direct) continue;
      // Listing and message directives act only in pass 2.
      if (r.id >= DIR_TITLE && r.id <= DIR_SSNOLIST) {
        EXPECT_EQ(r.pass1, donothing);
      }
      auto [it, fresh] = first.emplace(r.id, &r);
      if (!fresh) {
        EXPECT_EQ(it->second->parse, r.parse);
      }
    }
  }
  EXPECT_EQ(count, 154 + 6);
}
