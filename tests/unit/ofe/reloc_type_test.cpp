// The ARM relocation vocabulary of ELF files.
#include <gtest/gtest.h>

#include <set>

#include "ofe_test_util.h"

namespace ofe_test {
namespace {

using namespace OFE;

TEST(RelocTypes, ElfTableLookups)
{
    clear_errors();
    auto f = make_elf();
    struct Case {
        unsigned id;
        const char *name;
        unsigned number;
        unsigned field_size;
        unsigned scale;
        uint32_t pc_mask;
    };
    for (Case c : {Case{0x31E, "R_ARM_THM_JUMP19", 51, 20, 1, ~0u}, Case{0x11E, "R_ARM_ABS32", 2, 32, 0, ~0u},
                   Case{0x300, "R_ARM_PC24", 1, 25, 1, ~0u}, Case{0x307, "R_ARM_THM_PC8", 11, 8, 2, 0xFFFFFFFCu},
                   Case{0x34D, "R_ARM_THM_ALU_ABS_G3", 135, 8, 24, ~0u}, Case{0x100, "R_ARM_NONE", 0, 0, 0, ~0u}}) {
        const OF_RELOC_TYPE *t = f->reloc_type(c.id);
        ASSERT_NE(t, nullptr);
        EXPECT_STREQ(t->name(), c.name);
        EXPECT_EQ(t->number(), c.number);
        EXPECT_EQ(t->template_id(), c.id);
        EXPECT_EQ(t->field_size(), c.field_size);
        EXPECT_EQ(t->scale(), c.scale);
        EXPECT_EQ(t->pc_mask(), c.pc_mask);
        EXPECT_EQ(f->machine_reloc_type(c.number), t);
        EXPECT_EQ(f->reloc_type(t->template_name()), t);
    }
    EXPECT_TRUE(errors().empty());
    EXPECT_EQ(f->reloc_type("OFR_ARM_THM_ABS5")->field_offset(), 6u);
    EXPECT_STREQ(f->reloc_type("OFR_NOT_THERE")->name(), "R_INVALID");

    const OF_RELOC_TYPE *bad = f->reloc_type(0x999);
    EXPECT_STREQ(bad->name(), "R_INVALID");
    EXPECT_EQ(bad->number(), 0u);
    EXPECT_EQ(bad->reloc_template(), nullptr);
    EXPECT_FALSE(bad->is_symrel());
    EXPECT_EQ(bad->pc_mask(), ~0u);
    ASSERT_EQ(errors().size(), 1u);
    EXPECT_EQ(errors()[0].code, 4);
    EXPECT_EQ(errors()[0].text, "relocation template 2457 not found; returning OFR_INVALID");

    // Template-less and obsolete rows are known by number only.
    for (unsigned n : {12u, 13u, 20u, 112u, 127u, 128u}) {
        const OF_RELOC_TYPE *t = f->machine_reloc_type(n);
        ASSERT_NE(t, nullptr) << n;
        EXPECT_EQ(t->reloc_template(), nullptr) << n;
    }
    EXPECT_STREQ(f->machine_reloc_type(13)->name(), "R_ARM_SWI24");
    EXPECT_EQ(f->machine_reloc_type(13)->template_id(), 1u);
    EXPECT_EQ(f->machine_reloc_type(136), nullptr);
}

TEST(RelocTypes, WholeTableShape)
{
    auto f = make_elf();
    std::set<std::string> rela, symrel_missing;
    unsigned rows = 0, templated = 0;
    for (unsigned n = 0; n < 256; ++n) {
        const OF_RELOC_TYPE *t = f->machine_reloc_type(n);
        if (!t) continue;
        ++rows;
        if (!t->reloc_template()) continue;
        ++templated;
        if (t->is_rela()) rela.insert(t->name());
        if (!t->is_symrel() && !t->is_marker()) symrel_missing.insert(t->name());
        EXPECT_EQ(f->reloc_type(t->template_id()), t);
    }
    EXPECT_EQ(rows, 129u);
    EXPECT_EQ(templated, 82u);
    EXPECT_EQ(rela, (std::set<std::string>{"R_ARM_MOVT_ABS", "R_ARM_THM_MOVT_ABS", "R_ARM_THM_ALU_ABS_G3"}));
    EXPECT_TRUE(symrel_missing.empty());
    const OF_RELOC_TYPE *call = f->reloc_type(OFR_ARM_CALL);
    EXPECT_TRUE(call->is_pcrel());
    EXPECT_FALSE(call->is_binary());
    EXPECT_EQ(call->flags(), 0x2005u);
    EXPECT_EQ(call->overflow(), OFRO_SIGNED);
    EXPECT_EQ(call->container_size(), 32u);
    EXPECT_TRUE(f->reloc_type(OFR_PCRLONG)->is_pcrel());
}

}  // namespace
}  // namespace ofe_test
