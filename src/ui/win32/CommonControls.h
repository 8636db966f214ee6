// The system's common controls.
#pragma once

#include "platform/host/win32/WindowsHeader.h"

// Behind the one header, which sets what it needs.
#include <commctrl.h>
