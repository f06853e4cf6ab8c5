#include "system/write_shield.h"

namespace quillomat {

// Here such a write just fails by itself.
struct WriteShield::Signals {};

WriteShield::WriteShield() = default;
WriteShield::~WriteShield() = default;

}  // namespace quillomat
