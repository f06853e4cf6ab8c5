// A name that the check must find again.
#pragma once

namespace quillomat {

class Example final {};

}  // namespace quillomat
