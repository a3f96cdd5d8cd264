#pragma once

/// Marks what the platform libraries export. Everything else in them is hidden.
#define ZEL_PLATFORM_API __attribute__((visibility("default")))
