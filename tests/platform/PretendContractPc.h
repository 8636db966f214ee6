// A PC that pretends, over one of the others, in the contract suite.
#pragma once

#include "platform/pretend/PretendPc.h"

namespace zub {

template <class Base>
class Pretending : public Base {
 public:
  Platform& platform() { return platform_; }
  Platform& beneath() { return Base::platform(); }

 private:
  PretendPc pretend_{Base::platform()};
  Platform platform_{pretend_.platform(Base::platform().events, Base::platform().messages)};
};

}  // namespace zub
