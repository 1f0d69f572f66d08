// The ZQ-COFF relocation numbers: every row finds its template, the
// expression operators are numbered in order, and the ARM rows bind the
// templates that the ELF table binds to other numbers.
#include <gtest/gtest.h>

#include "ofe/of_reloc_type.h"

using namespace OFE;

TEST(ZqcoffRelocRows, RowsBindTheirTemplates) {
    OF_RELOC_TYPE_TABLE table;
    for (const OF_RELOC_TEMPLATE *t = OF_COMMON_RELOC_TEMPLATE_DB; t->id != ~0u; ++t) table.add_template(*t);
    for (const OF_RELOC_TEMPLATE *t = OF_ARM_RELOC_TEMPLATE_DB; t->id != ~0u; ++t) table.add_template(*t);
    unsigned rows = 0;
    for (const OF_RELOC_TYPE_ROW *r : {OF_COMMON_ZQCOFF_RELOC_TYPE_DB, OF_ARM_ZQCOFF_RELOC_TYPE_DB})
        for (; r->number != ~0u; ++r, ++rows) EXPECT_TRUE(table.add_type(*r)) << r->name;
    EXPECT_EQ(rows, 9u + 23u + 3u + 11u);

    struct want { uint32_t id; uint32_t number; const char *name; };
    for (const want &w : {want{0x31E, 0xA3, "R_T2_PCR20H"}, want{0x11E, 0x11, "R_RELLONG"},
                          want{OFRE_ADD, 0x4000, "RE_ADD"}, want{OFRE_XSTFLD, 0x4016, "RE_XSTFLD"},
                          want{OFR_ARM_PC24, 0x17, "R_PCR24W"}, want{OFR_ARM_MOVT_ABS, 0xAA, "R_MOVT_ABS"},
                          want{OFRM_DWARF_LENGTH, 0x5002, "RM_DWARF_LENGTH"}}) {
        const OF_RELOC_TYPE *t = table.by_template_id(w.id);
        ASSERT_NE(t, nullptr) << w.name;
        EXPECT_EQ(t->number(), w.number) << w.name;
        EXPECT_STREQ(t->name(), w.name);
    }
    // An ARM template without a row has no ZQ-COFF form.
    EXPECT_EQ(table.by_template_id(OFR_ARM_PREL31), nullptr);
}
