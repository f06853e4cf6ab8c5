#include "ui/control.h"

#include <utility>

#include "ui/form.h"

namespace quillomat {
namespace {

std::string WholeName(const ControlName& name) {
  return name.index ? name.base + '(' + std::to_string(*name.index) + ')' : name.base;
}

}  // namespace

Control::Control(Form& owner, ControlName name, ControlKind kind)
    : owner_(owner), kind_(kind), index_(name.index), name_(WholeName(name)) {
  baseName_ = std::move(name.base);
  owner.Register(*this);
}

bool Control::CanTakeFocus() const {
  return kind_ != ControlKind::kLabel && kind_ != ControlKind::kFrame && enabled_ && visible_;
}

}  // namespace quillomat
