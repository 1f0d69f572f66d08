#include "ofe_test_util.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace ofe_test {

using namespace OFE;

std::vector<LoggedError> &errors()
{
    static std::vector<LoggedError> log;
    return log;
}

void clear_errors() { errors().clear(); }

bool has_error(int code, const std::string &text_part)
{
    for (const auto &e : errors())
        if (e.code == code && e.text.find(text_part) != std::string::npos) return true;
    return false;
}

void record_error(OBJECT_FILE *f, OF_ERROR_CODE code, const char *text)
{
    errors().push_back({code, text ? text : ""});
    f->clear_error();
}

std::unique_ptr<OBJECT_FILE> make_elf(bool big_endian, const char *producer)
{
    std::unique_ptr<OBJECT_FILE> f(
        OBJECT_FILE::new_OBJECT_FILE(OFF_ELF, OFV_ELF1, OFC_32, OFM_ARM, nullptr, "test.obj"));
    if (!f) throw std::runtime_error("no ELF object");
    f->set_machine_endian(big_endian ? OFE_BIG : OFE_LITTLE);
    if (producer) f->set_producer(producer, 1, 2, 3);
    f->set_error_handler(record_error);
    f->elf_api()->elf_symbol_table()->set_default_visibility(STV_HIDDEN);
    return f;
}

ELF_FILE *elf(const std::unique_ptr<OBJECT_FILE> &f) { return f->elf_api(); }

namespace {

// One directory per run, removed at exit.
struct TempDir {
    std::string path;
    TempDir()
    {
        std::string base = std::string(ZQ_BINARY_DIR) + "/ofe_test_tmp";
        std::filesystem::create_directories(base);
        path = base + "/run." + std::to_string(getpid());
        std::filesystem::create_directories(path);
    }
    ~TempDir()
    {
        std::error_code ec;
        if (!std::getenv("ZQ_KEEP_TEST_FILES")) std::filesystem::remove_all(path, ec);
    }
};

}  // namespace

std::string temp_path(const std::string &name)
{
    static TempDir dir;
    return dir.path + "/" + name;
}

std::vector<unsigned char> read_file(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void write_file(const std::string &path, const std::string &contents)
{
    std::ofstream out(path, std::ios::binary);
    out << contents;
}

RunResult run(const std::string &command)
{
    RunResult r;
    std::string err_path = temp_path("stderr." + std::to_string(rand()));
    std::string cmd = command + " 2>" + err_path;
    FILE *p = popen(cmd.c_str(), "r");
    if (!p) return r;
    char buf[4096];
    std::size_t n;
    while ((n = fread(buf, 1, sizeof buf, p)) > 0) r.out.append(buf, n);
    int status = pclose(p);
    r.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    auto err = read_file(err_path);
    r.err.assign(err.begin(), err.end());
    std::remove(err_path.c_str());
    return r;
}

// ---- ELF reader -----------------------------------------------------------------

uint32_t Elf::u32(std::size_t off) const
{
    if (off + 4 > bytes.size()) throw std::out_of_range("u32 past the end");
    const unsigned char *p = &bytes[off];
    return big ? (uint32_t{p[0]} << 24 | uint32_t{p[1]} << 16 | uint32_t{p[2]} << 8 | p[3])
               : (uint32_t{p[3]} << 24 | uint32_t{p[2]} << 16 | uint32_t{p[1]} << 8 | p[0]);
}

uint16_t Elf::u16(std::size_t off) const
{
    if (off + 2 > bytes.size()) throw std::out_of_range("u16 past the end");
    const unsigned char *p = &bytes[off];
    return static_cast<uint16_t>(big ? (p[0] << 8 | p[1]) : (p[1] << 8 | p[0]));
}

const Shdr *Elf::find(const std::string &name) const
{
    for (const auto &s : sections)
        if (s.name == name) return &s;
    return nullptr;
}

int Elf::index_of(const std::string &name) const
{
    for (std::size_t i = 0; i < sections.size(); ++i)
        if (sections[i].name == name) return static_cast<int>(i);
    return -1;
}

std::vector<unsigned char> Elf::contents(const Shdr &s) const
{
    if (s.sh_type == 8 || s.sh_size == 0) return {};
    if (s.sh_offset + s.sh_size > bytes.size()) throw std::out_of_range("section past the end");
    return {bytes.begin() + s.sh_offset, bytes.begin() + s.sh_offset + s.sh_size};
}

std::vector<std::string> Elf::section_names() const
{
    std::vector<std::string> names;
    for (const auto &s : sections) names.push_back(s.name);
    return names;
}

std::vector<Sym> Elf::symbols() const
{
    std::vector<Sym> out;
    const Shdr *symtab = find(".symtab");
    if (!symtab) return out;
    const Shdr &strtab = sections.at(symtab->sh_link);
    for (uint32_t off = symtab->sh_offset; off < symtab->sh_offset + symtab->sh_size; off += 16) {
        Sym s{};
        s.st_name = u32(off);
        s.st_value = u32(off + 4);
        s.st_size = u32(off + 8);
        s.st_info = bytes.at(off + 12);
        s.st_other = bytes.at(off + 13);
        s.st_shndx = u16(off + 14);
        s.name = reinterpret_cast<const char *>(&bytes.at(strtab.sh_offset + s.st_name));
        out.push_back(s);
    }
    return out;
}

std::vector<Rel> Elf::relocs(const Shdr &s) const
{
    std::vector<Rel> out;
    unsigned size = s.sh_type == 4 ? 12 : 8;
    for (uint32_t off = s.sh_offset; off < s.sh_offset + s.sh_size; off += size)
        out.push_back({u32(off), u32(off + 4), size == 12 ? static_cast<int32_t>(u32(off + 8)) : 0});
    return out;
}

Elf parse_elf(const std::string &path)
{
    Elf e;
    e.bytes = read_file(path);
    if (e.bytes.size() < 52 || e.bytes[0] != 0x7F || e.bytes[1] != 'E') throw std::runtime_error("not ELF");
    e.big = e.bytes[5] == 2;
    e.e_type = e.u16(16);
    e.e_machine = e.u16(18);
    e.e_version = e.u32(20);
    e.e_entry = e.u32(24);
    e.e_phoff = e.u32(28);
    e.e_shoff = e.u32(32);
    e.e_flags = e.u32(36);
    e.e_ehsize = e.u16(40);
    e.e_phentsize = e.u16(42);
    e.e_phnum = e.u16(44);
    e.e_shentsize = e.u16(46);
    e.e_shnum = e.u16(48);
    e.e_shstrndx = e.u16(50);
    uint32_t count = e.e_shnum;
    if (count == 0 && e.e_shoff) count = e.u32(e.e_shoff + 20);  // sh_size of section 0
    for (uint32_t i = 0; i < count; ++i) {
        std::size_t h = e.e_shoff + std::size_t{i} * 40;
        Shdr s{};
        s.sh_name = e.u32(h);
        s.sh_type = e.u32(h + 4);
        s.sh_flags = e.u32(h + 8);
        s.sh_addr = e.u32(h + 12);
        s.sh_offset = e.u32(h + 16);
        s.sh_size = e.u32(h + 20);
        s.sh_link = e.u32(h + 24);
        s.sh_info = e.u32(h + 28);
        s.sh_addralign = e.u32(h + 32);
        s.sh_entsize = e.u32(h + 36);
        e.sections.push_back(s);
    }
    uint32_t shstrndx = e.e_shstrndx == 0xFFFF ? e.sections.at(0).sh_link : e.e_shstrndx;
    if (shstrndx < e.sections.size()) {
        const Shdr &names = e.sections[shstrndx];
        for (auto &s : e.sections) s.name = reinterpret_cast<const char *>(&e.bytes.at(names.sh_offset + s.sh_name));
    }
    return e;
}

}  // namespace ofe_test
