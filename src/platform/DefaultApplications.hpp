#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quorvane {

// Which application opens a kind of file (a content type such as "com.adobe.pdf") or a kind of
// link (a URL scheme such as "mailto"). Applications are named by their bundle's path.
class DefaultApplications {
public:
    // Empty on success; otherwise why the change was not made (the user declined the system's
    // confirmation, the application cannot open that kind).
    using Completion = std::function<void(const std::string& error)>;

    virtual ~DefaultApplications() = default;

    virtual std::optional<std::string> defaultForContentType(const std::string& contentType) = 0;
    virtual std::vector<std::string> applicationsForContentType(const std::string& contentType) = 0;
    virtual std::optional<std::string> defaultForURLScheme(const std::string& scheme) = 0;
    virtual std::vector<std::string> applicationsForURLScheme(const std::string& scheme) = 0;
    // The system may ask the user to confirm first (it does for the web browser), so the answer
    // comes later, on the main thread.
    virtual void setDefaultForContentType(const std::string& applicationPath,
                                          const std::string& contentType,
                                          Completion completion) = 0;
    virtual void setDefaultForURLScheme(const std::string& applicationPath,
                                        const std::string& scheme, Completion completion) = 0;
};

}  // namespace quorvane
