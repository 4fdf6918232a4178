#pragma once
// AppKit as a Mac's umbrella presents it: GNUstep's AppKit, the frameworks a Mac's AppKit
// brings in with it, and the declarations of API
// GNUstep lacks.
// GNUstep's AppKit comes first; the additions extend its classes.
// clang-format off
#include_next <AppKit/AppKit.h>
#include <ApplicationServices/ApplicationServices.h>
#include <dispatch/dispatch.h>
#include <AppKitAdditions.h>
// clang-format on
