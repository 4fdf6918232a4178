#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/Accessibility.hpp"

namespace quorvane {

// Applications' accessibility for the watcher: elements name their process, and observers'
// registrations answer what the test scripts per process.
struct FakeAccessibility : Accessibility {
    struct FakeElement : AccessibilityElement {
        FakeElement(int processID, std::string elementName)
            : pid(processID), name(std::move(elementName)) {}
        int pid;
        std::string name;
    };
    struct Observer : AccessibilityObserver {
        Observer(FakeAccessibility& fake, int processID, ObserverCallback onNotification)
            : owner(fake), pid(processID), callback(std::move(onNotification)) {}
        ~Observer() override { std::erase(owner.observers, this); }
        std::int32_t addNotification(const Element& element, std::string_view name) override {
            const auto answer = owner.registrationAnswers.find(pid);
            const std::int32_t status =
                answer == owner.registrationAnswers.end() ? kSuccess : answer->second;
            if (status == kSuccess) {
                registered.emplace_back(element, std::string(name));
            }
            ++owner.registrationCalls[pid];
            return status;
        }
        std::int32_t removeNotification(const Element&, std::string_view) override {
            return kSuccess;
        }
        void schedule() override { scheduled = true; }

        FakeAccessibility& owner;
        int pid;
        ObserverCallback callback;
        bool scheduled = false;
        std::vector<std::pair<Element, std::string>> registered;
    };

    // The status every registration for a process answers (kSuccess when absent).
    std::map<int, std::int32_t> registrationAnswers;
    std::map<int, int> registrationCalls;
    std::map<int, int> observersCreated;
    std::vector<Observer*> observers;
    std::vector<float> timeouts;

    Element systemWide() override { return std::make_shared<FakeElement>(0, "system-wide"); }
    Element application(int pid) override {
        return std::make_shared<FakeElement>(pid, "application");
    }
    std::int32_t copyAttribute(const Element&, std::string_view, AccessibilityValue&) override {
        return kNoValue;
    }
    std::int32_t setAttribute(const Element&, std::string_view,
                              const AccessibilityValue&) override {
        return kSuccess;
    }
    std::int32_t elementAtPosition(const Element&, float, float, Element&) override {
        return kNoValue;
    }
    std::int32_t pid(const Element& element, int& pid) override {
        pid = static_cast<const FakeElement&>(*element).pid;
        return kSuccess;
    }
    std::int32_t performAction(const Element&, std::string_view) override { return kSuccess; }
    std::int32_t setMessagingTimeout(const Element&, float seconds) override {
        timeouts.push_back(seconds);
        return kSuccess;
    }
    std::unique_ptr<AccessibilityObserver> createObserver(int pid, ObserverCallback callback,
                                                          std::int32_t& status) override {
        ++observersCreated[pid];
        status = kSuccess;
        auto observer = std::make_unique<Observer>(*this, pid, std::move(callback));
        observers.push_back(observer.get());
        return observer;
    }
    Observer* observerOf(int pid) {
        for (Observer* observer : observers) {
            if (observer->pid == pid && observer->scheduled) {
                return observer;
            }
        }
        return nullptr;
    }
};

}  // namespace quorvane
