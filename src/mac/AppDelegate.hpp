#pragma once

namespace quorvane {

// Creates Quorvane's application delegate and sets it on the shared NSApplication, which must
// exist already. The delegate then lives until the process ends.
void installAppDelegate();

}  // namespace quorvane
