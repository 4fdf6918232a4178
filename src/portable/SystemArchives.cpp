#include "portable/SystemArchives.hpp"

#include "portable/NoArchives.hpp"
#ifdef QUORVANE_HAVE_LIBARCHIVE
#include "portable/LibArchiveArchives.hpp"
#endif

namespace quorvane {

std::unique_ptr<Archives> makeSystemArchives() {
#ifdef QUORVANE_HAVE_LIBARCHIVE
    return std::make_unique<LibArchiveArchives>();
#else
    return std::make_unique<NoArchives>();
#endif
}

}  // namespace quorvane
