#include <cstdlib>
#include <filesystem>

#include "support/TemporaryDirectory.hpp"

namespace quorvane {
namespace {

// Tools built from the whole catalog open their data folders under the home and data
// directories when constructed (the clipboard history reads and prunes its folder). A test must
// never touch the user's own, so the whole binary runs with both pointed at a scratch folder
// before the first test starts.
struct IsolatedHome {
    TemporaryDirectory folder;
    IsolatedHome() {
        ::setenv("HOME", folder.path().c_str(), 1);
        ::setenv("XDG_DATA_HOME", (folder.path() / "data").c_str(), 1);
    }
};

const IsolatedHome isolatedHome;

}  // namespace
}  // namespace quorvane
