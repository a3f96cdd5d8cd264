#pragma once

/// Marks what the library exports; everything else in it is hidden.
#define ZEL_KIV_API __attribute__((visibility("default")))

/// Takes a member of an exported class out of the exports again.
#define ZEL_KIV_LOCAL __attribute__((visibility("hidden")))
