// What counts knows no window: an include that the check must find, too.
#pragma once

#include "ui/form.h"
