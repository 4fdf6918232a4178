#pragma once

#include "platform/DefaultApplications.hpp"

namespace quorvane {

// No Launch Services elsewhere: no handlers are known, and none can be chosen.
class PortableDefaultApplications : public DefaultApplications {
public:
    std::optional<std::string> defaultForContentType(const std::string&) override {
        return std::nullopt;
    }
    std::vector<std::string> applicationsForContentType(const std::string&) override { return {}; }
    std::optional<std::string> defaultForURLScheme(const std::string&) override {
        return std::nullopt;
    }
    std::vector<std::string> applicationsForURLScheme(const std::string&) override { return {}; }
    void setDefaultForContentType(const std::string&, const std::string&,
                                  Completion completion) override {
        completion("Default apps can only be chosen on a Mac");
    }
    void setDefaultForURLScheme(const std::string&, const std::string&,
                                Completion completion) override {
        completion("Default apps can only be chosen on a Mac");
    }
};

}  // namespace quorvane
