#pragma once

#include <cstdint>
#include <utility>

namespace quorvane {

class HotKeyCenter;

// One registered global shortcut. Dropping it unregisters the shortcut, so a tool that keeps
// its hot key in an optional member gives it back simply by resetting the member.
class HotKey {
public:
    HotKey(HotKeyCenter& center, std::uint32_t id) : center_(&center), id_(id) {}
    HotKey(HotKey&& other) noexcept
        : center_(std::exchange(other.center_, nullptr)), id_(other.id_) {}
    HotKey& operator=(HotKey&& other) noexcept {
        if (this != &other) {
            release();
            center_ = std::exchange(other.center_, nullptr);
            id_ = other.id_;
        }
        return *this;
    }
    HotKey(const HotKey&) = delete;
    HotKey& operator=(const HotKey&) = delete;
    ~HotKey() { release(); }

    // Unique for the life of the process.
    std::uint32_t id() const { return id_; }

private:
    void release();

    HotKeyCenter* center_;
    std::uint32_t id_;
};

}  // namespace quorvane
