#pragma once
// Common set-up of the symbol-table tests: an empty table, pass 1, fresh
// options, and a way to see the messages that reach the screen.
#include <gtest/gtest.h>

#include <cstdlib>
#include <initializer_list>
#include <string>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/records.h"
#include "expr/expr.h"
#include "expr/symbols.h"
#include "expr/symbols_internal.h"
#include "listing/listing.h"

class SymbolsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    SYM_init();
    global_opts = new option_obj(true);
    pass1 = 1;
    pass2 = 0;
    curpc = 0;
    curseg = nullptr;
    cur_state = 0;
    num_errors = 0;
    num_warnings = 0;
  }
  void TearDown() override {
    curlst = lastlst = nullptr;
    SYM_init();
    delete global_opts;
    global_opts = nullptr;
    pass1 = 1;
    pass2 = 0;
  }

  // The pass-2 half of a run: what prepare_pass2 does to the table.
  static void start_pass2() {
    SYM_reset();
    pass1 = 0;
    pass2 = 1;
    num_errors = 0;
    curpc = 0;
  }

  // Puts the lines in one listing group, as the queue holds a statement's lines.
  void queue(std::initializer_list<linebuf *> lines) {
    linebuf *prev = nullptr;
    for (linebuf *l : lines) {
      if (prev) prev->next = l;
      prev = l;
    }
    group_ = lst_group{*lines.begin(), prev, nullptr};
    curlst = lastlst = &group_;
  }

  static value_record icon(uint32_t v) {
    value_record r;
    E_clrval(&r);
    r.v_val = xi_from_uint(v);
    r.v_bits = 32;
    return r;
  }

  template <class F>
  static std::string screen(F &&f) {
    ::testing::internal::CaptureStderr();
    f();
    return ::testing::internal::GetCapturedStderr();
  }

  // A message with this id and text was shown.
  static bool shown(const std::string &out, const char *id, const std::string &text) {
    return out.find(std::string("[") + id + "]") != std::string::npos && out.find(text) != std::string::npos;
  }

 private:
  lst_group group_{};
};

// A source line as the listing queue holds it; releases what messages and
// object entries the message and listing functions attach.
struct test_line : linebuf {
  explicit test_line(uint32_t number = 1) : linebuf{} {
    line_number = number;
    flags = LNF_PRINT | LNF_ADDRESS | LNF_OBJECT;
  }
  ~test_line() {
    for (char *&m : messages) {
      std::free(m);
      m = nullptr;
    }
    if (object) LSTOBJ_free(object);
  }
  test_line(const test_line &) = delete;
  test_line &operator=(const test_line &) = delete;
};
