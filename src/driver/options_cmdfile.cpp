// Words of a command file.
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "driver/options.h"
#include "support/memory.h"

namespace {
// A word in a malloc'd buffer, grown in steps of 80 bytes.
struct word_buf {
    char *text = nullptr;
    size_t len = 0;
    size_t cap = 0;
    void add(char c)
    {
        if (len + 2 > cap) {
            cap += 80;
            text = static_cast<char *>(saferealloc(text, cap));
        }
        text[len++] = c;
        text[len] = '\0';
    }
    bool has_dash() const { return text && memchr(text, '-', len) != nullptr; }
};

[[noreturn]] void unterminated_comment()
{
    fflush(stdout);
    fputs(">> Unterminated comment in command file;", stderr);
    fputs(" aborting!\n", stderr);
    fflush(stderr);
    exit(255);
}

[[noreturn]] void unterminated_quote(const word_buf &w, size_t from)
{
    fflush(stdout);
    fputs(">> Unterminated quote in command file; aborting\n", stderr);
    fputs("   Quote starts at ", stderr);
    for (size_t i = from, shown = 0; i < w.len && shown < 30; ++i, ++shown) {
        if (w.text[i] == '\n')
            fputs("\\n", stderr);
        else if (w.text[i] == '\t')
            fputs("\\t", stderr);
        else
            fputc(w.text[i], stderr);
    }
    fputc('\n', stderr);
    fflush(stderr);
    exit(255);
}

// Skips a comment whose "/*" was read.
void skip_block_comment(FILE *fp)
{
    int prev = 0, c;
    while ((c = fgetc(fp)) != EOF) {
        if (prev == '*' && c == '/') return;
        prev = c;
    }
    unterminated_comment();
}

void skip_to_line_end(FILE *fp)
{
    int c;
    while ((c = fgetc(fp)) != EOF && c != '\n') {
    }
}

// After a backslash: the escaped character for \" and \\, else the
// backslash stays and c is read again.
void add_escape(FILE *fp, word_buf &w)
{
    int c = fgetc(fp);
    if (c == '"' || c == '\\') {
        w.add(static_cast<char>(c));
        return;
    }
    w.add('\\');
    if (c != EOF) ungetc(c, fp);
}
}  // namespace

char *fnextopt(FILE *fp)
{
    if (!fp) return nullptr;
    word_buf w;
    bool started = false;   // a quote makes a word even when it is empty
    int c;
    while ((c = fgetc(fp)) != EOF) {
        if (c == '/') {
            int d = fgetc(fp);
            if (d == '*') {
                skip_block_comment(fp);
                continue;
            }
            if (d != EOF) ungetc(d, fp);
            w.add('/');
            started = true;
        } else if (c == '"') {
            size_t from = w.len;
            started = true;
            for (;;) {
                int q = fgetc(fp);
                if (q == EOF) unterminated_quote(w, from);
                if (q == '"') break;
                if (q == '\\')
                    add_escape(fp, w);
                else
                    w.add(static_cast<char>(q));
            }
        } else if (c == '\\') {
            add_escape(fp, w);
            started = true;
        } else if (c == ';' || (c == '#' && !w.has_dash())) {
            skip_to_line_end(fp);
            if (started) break;
        } else if (isspace(c)) {
            if (started) break;
        } else {
            w.add(static_cast<char>(c));
            started = true;
        }
    }
    if (!started) return nullptr;
    if (!w.text) {
        w.text = static_cast<char *>(safemalloc(1));
        w.text[0] = '\0';
    }
    return w.text;
}
