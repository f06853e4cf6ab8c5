#include "system/write_shield.h"

#include "system/linux/signal_shield.h"

namespace quillomat {

struct WriteShield::Signals {
  SignalShield shield;
};

WriteShield::WriteShield() : signals_(std::make_unique<Signals>()) {}
WriteShield::~WriteShield() = default;

}  // namespace quillomat
