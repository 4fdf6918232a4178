#include "mac/MacPorts.hpp"

#include <memory>

#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"

// unconfirmed: check on a Mac first. None of the NSWorkspace handler methods below, nor
// UTType, are in the fact sheet; they are written from Apple's reference (macOS 12 and later).

namespace quorvane {

namespace {

std::optional<std::string> pathOf(NSURL* url) { return utf8StringIfText(url.path); }

// A URL of the scheme alone ("mailto:"), which is all the lookups look at.
NSURL* schemeURL(const std::string& scheme) { return [NSURL URLWithString:text(scheme + ":")]; }

NSURL* applicationURL(const std::string& path) {
    return [NSURL fileURLWithPath:text(path) isDirectory:YES];
}

// The system answers on a queue of its own; the port promises the main thread.
void (^answer(DefaultApplications::Completion completion))(NSError* _Nullable) {
    auto shared = std::make_shared<DefaultApplications::Completion>(std::move(completion));
    return ^(NSError* _Nullable error) {
      std::string message = errorText(error, "");
      dispatch_async(dispatch_get_main_queue(), ^{
        (*shared)(message);
      });
    };
}

// Default handlers through NSWorkspace's content-type and URL methods (macOS 12 and later).
class MacDefaultApplications final : public DefaultApplications {
public:
    std::optional<std::string> defaultForContentType(const std::string& contentType) override {
        @autoreleasepool {
            UTType* type = [UTType typeWithIdentifier:text(contentType)];
            return type != nil ? pathOf([[NSWorkspace sharedWorkspace]
                                     URLForApplicationToOpenContentType:type])
                               : std::nullopt;
        }
    }

    std::vector<std::string> applicationsForContentType(const std::string& contentType) override {
        @autoreleasepool {
            UTType* type = [UTType typeWithIdentifier:text(contentType)];
            return type != nil ? pathsOf([[NSWorkspace sharedWorkspace]
                                     URLsForApplicationsToOpenContentType:type])
                               : std::vector<std::string>{};
        }
    }

    std::optional<std::string> defaultForURLScheme(const std::string& scheme) override {
        @autoreleasepool {
            NSURL* url = schemeURL(scheme);
            return url != nil
                       ? pathOf([[NSWorkspace sharedWorkspace] URLForApplicationToOpenURL:url])
                       : std::nullopt;
        }
    }

    std::vector<std::string> applicationsForURLScheme(const std::string& scheme) override {
        @autoreleasepool {
            NSURL* url = schemeURL(scheme);
            return url != nil
                       ? pathsOf([[NSWorkspace sharedWorkspace] URLsForApplicationsToOpenURL:url])
                       : std::vector<std::string>{};
        }
    }

    void setDefaultForContentType(const std::string& applicationPath,
                                  const std::string& contentType, Completion completion) override {
        @autoreleasepool {
            UTType* type = [UTType typeWithIdentifier:text(contentType)];
            if (type == nil) {
                completion("the system does not know the kind " + contentType);
                return;
            }
            [[NSWorkspace sharedWorkspace]
                setDefaultApplicationAtURL:applicationURL(applicationPath)
                         toOpenContentType:type
                         completionHandler:answer(std::move(completion))];
        }
    }

    void setDefaultForURLScheme(const std::string& applicationPath, const std::string& scheme,
                                Completion completion) override {
        @autoreleasepool {
            // The system asks the user to confirm a change of the http and https handlers.
            [[NSWorkspace sharedWorkspace]
                setDefaultApplicationAtURL:applicationURL(applicationPath)
                      toOpenURLsWithScheme:text(scheme)
                         completionHandler:answer(std::move(completion))];
        }
    }
};

}  // namespace

std::unique_ptr<DefaultApplications> makeMacDefaultApplications() {
    return std::make_unique<MacDefaultApplications>();
}

}  // namespace quorvane
