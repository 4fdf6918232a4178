#pragma once

#include "platform/DefaultApplications.hpp"

namespace quorvane {

// Default handlers through NSWorkspace's content-type and URL methods (macOS 12 and later).
class MacDefaultApplications final : public DefaultApplications {
public:
    std::optional<std::string> defaultForContentType(const std::string& contentType) override;
    std::vector<std::string> applicationsForContentType(const std::string& contentType) override;
    std::optional<std::string> defaultForURLScheme(const std::string& scheme) override;
    std::vector<std::string> applicationsForURLScheme(const std::string& scheme) override;
    void setDefaultForContentType(const std::string& applicationPath,
                                  const std::string& contentType, Completion completion) override;
    void setDefaultForURLScheme(const std::string& applicationPath, const std::string& scheme,
                                Completion completion) override;
};

}  // namespace quorvane
