#pragma once
// The section fixture with its object known to the driver as ELF, as
// make_ofile leaves it.
#include "driver/driver_run.h"
#include "sections_fixture.h"

class GlueTest : public SectionsTest {
 protected:
  void SetUp() override {
    SectionsTest::SetUp();
    object_format_chosen = 2;
  }
  void TearDown() override {
    object_format_chosen = 0;
    SectionsTest::TearDown();
  }
};
