// Saving never leaves a half-written file in place of an older one.
#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>

#include "ofe_test_util.h"

namespace ofe_test {
namespace {

using namespace OFE;

std::size_t files_in(const std::string &dir)
{
    std::size_t n = 0;
    for (const auto &entry : std::filesystem::directory_iterator(dir)) n += entry.is_regular_file();
    return n;
}

TEST(Save, FailureLeavesTheOldFile)
{
    std::string dir = temp_path("save_dir");
    std::filesystem::create_directories(dir);
    std::string path = dir + "/out.o";
    write_file(path, "previous contents");

    clear_errors();
    auto f = make_elf();
    OF_SECTION *code = f->section_table()->new_section(".text");
    code->raw_data().UINT32_write(0);
    OF_SECTION *g = f->section_table()->new_group("grp");
    g->group_api()->add_member(code);  // but no signature symbol
    EXPECT_EQ(f->save_obj(path.c_str()), -1);
    EXPECT_TRUE(has_error(3, "a symbol has not been specified for the group section grp"));
    EXPECT_TRUE(has_error(2, "an error occurred while writing \"" + path + "\""));
    auto old = read_file(path);
    EXPECT_EQ(std::string(old.begin(), old.end()), "previous contents");
    EXPECT_EQ(files_in(dir), 1u);

    clear_errors();
    std::string nowhere = temp_path("no/such/dir/out.o");
    auto h = make_elf();
    EXPECT_EQ(h->save_obj(nowhere.c_str()), -1);
    ASSERT_EQ(errors().size(), 1u);
    EXPECT_EQ(errors()[0].code, 2);
    EXPECT_EQ(errors()[0].text, "failed to open \"" + nowhere + "\" for writing");

    // A file that may not be written is not replaced either.
    std::string locked = dir + "/readonly.o";
    write_file(locked, "keep");
    std::filesystem::permissions(locked, std::filesystem::perms::owner_read);
    clear_errors();
    auto k = make_elf();
    if (access(locked.c_str(), W_OK) != 0) {  // root may write anyway
        EXPECT_EQ(k->save_obj(locked.c_str()), -1);
        EXPECT_TRUE(has_error(2, "failed to open \"" + locked + "\" for writing"));
        auto kept = read_file(locked);
        EXPECT_EQ(std::string(kept.begin(), kept.end()), "keep");
    }
    EXPECT_EQ(files_in(dir), 2u);
}

TEST(Save, SuccessReplacesTheFileAndKeepsContentsReadable)
{
    std::string dir = temp_path("save_ok");
    std::filesystem::create_directories(dir);
    std::string path = dir + "/out.o";
    write_file(path, "previous contents");
    clear_errors();
    auto f = make_elf();
    OF_SECTION *data = f->section_table()->new_section(".data");
    data->raw_data().UINT32_write(0xCAFEF00D);
    ASSERT_EQ(f->save_obj(path.c_str()), 0);
    EXPECT_TRUE(errors().empty());
    EXPECT_EQ(files_in(dir), 1u);
    Elf e = parse_elf(path);
    EXPECT_EQ(e.u32(e.find(".data")->sh_offset), 0xCAFEF00Du);
    EXPECT_TRUE(f->saved());
    EXPECT_EQ(f->elf_api()->formatted_size(), e.bytes.size());
    EXPECT_EQ(f->own_state(), OFS_SAVED);
    // The saved bytes now come back from the file.
    const DATA_MAP &m = data->raw_data_nocheck();
    EXPECT_EQ(m.file(), f->file_handle());
    m.set_cursor(0);
    EXPECT_EQ(m.UINT32_read(), 0xCAFEF00Du);

    // Devices are written in place.
    auto g = make_elf();
    EXPECT_EQ(g->save_obj("/dev/null"), 0);
    EXPECT_TRUE(errors().empty());
}

}  // namespace
}  // namespace ofe_test
