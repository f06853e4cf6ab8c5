// An include that the check must find.
#pragma once

#include "listing/example.h"
