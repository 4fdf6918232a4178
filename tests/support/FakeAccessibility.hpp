#pragma once

#include <map>
#include <memory>
#include <optional>
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
    // Attribute values by element and name; writes land here too, and in `writes`.
    std::map<std::pair<const AccessibilityElement*, std::string>, AccessibilityValue> attributes;
    std::vector<std::pair<std::string, AccessibilityValue>> writes;
    std::map<std::string, std::int32_t> writeAnswers;  // a failing attribute, by name
    // What lies where on screen, topmost first.
    std::vector<std::pair<Rect, Element>> hitAreas;
    std::vector<std::pair<Element, std::string>> actions;
    Element systemWideElement = std::make_shared<FakeElement>(0, "system-wide");

    // A window of an application, with its frame readable as position and size.
    Element makeWindow(int pid, Rect frame) {
        Element window = std::make_shared<FakeElement>(pid, "window");
        attributes[{window.get(), "AXRole"}] = std::string("AXWindow");
        attributes[{window.get(), "AXPosition"}] = frame.origin;
        attributes[{window.get(), "AXSize"}] = frame.size;
        return window;
    }
    std::optional<Rect> frameOf(const Element& window) {
        const auto position = attributes.find({window.get(), "AXPosition"});
        const auto size = attributes.find({window.get(), "AXSize"});
        if (position == attributes.end() || size == attributes.end()) {
            return std::nullopt;
        }
        return Rect(std::get<Point>(position->second), std::get<Size>(size->second));
    }

    Element systemWide() override { return systemWideElement; }
    // One element per application, so attributes set on it in a test are found again.
    std::map<int, Element> applicationElements;
    Element application(int pid) override {
        Element& element = applicationElements[pid];
        if (!element) {
            element = std::make_shared<FakeElement>(pid, "application");
        }
        return element;
    }
    // The applications asked to come to the front through "AXFrontmost", by process ID.
    std::vector<int> broughtToFront() const {
        std::vector<int> pids;
        for (const auto& [pid, element] : applicationElements) {
            if (attributes.contains({element.get(), "AXFrontmost"})) {
                pids.push_back(pid);
            }
        }
        return pids;
    }
    std::int32_t copyAttribute(const Element& element, std::string_view attribute,
                               AccessibilityValue& value) override {
        const auto found = attributes.find({element.get(), std::string(attribute)});
        if (found == attributes.end()) {
            return kNoValue;
        }
        value = found->second;
        return kSuccess;
    }
    // Answered from `attributes` like a plain read, whatever the parameter.
    std::int32_t copyParameterizedAttribute(const Element& element, std::string_view attribute,
                                            const AccessibilityValue&,
                                            AccessibilityValue& value) override {
        return copyAttribute(element, attribute, value);
    }
    std::int32_t setAttribute(const Element& element, std::string_view attribute,
                              const AccessibilityValue& value) override {
        const auto answer = writeAnswers.find(std::string(attribute));
        if (answer != writeAnswers.end()) {
            return answer->second;
        }
        attributes[{element.get(), std::string(attribute)}] = value;
        writes.emplace_back(std::string(attribute), value);
        return kSuccess;
    }
    std::int32_t elementAtPosition(const Element&, float x, float y, Element& element) override {
        for (const auto& [area, hit] : hitAreas) {
            if (area.contains({x, y})) {
                element = hit;
                return kSuccess;
            }
        }
        return kNoValue;
    }
    std::int32_t pid(const Element& element, int& pid) override {
        pid = static_cast<const FakeElement&>(*element).pid;
        return kSuccess;
    }
    std::int32_t performAction(const Element& element, std::string_view action) override {
        actions.emplace_back(element, std::string(action));
        return kSuccess;
    }
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
