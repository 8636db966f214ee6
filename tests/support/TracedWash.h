// A test PC whose wash is told as a text.
#pragma once

#include "support/CallTrace.h"
#include "support/WashFixture.h"

namespace zub {

struct TracedWash : WashFixture {
  using WashFixture::WashFixture;
  CallTrace trace{pc, engine};
};

}  // namespace zub
