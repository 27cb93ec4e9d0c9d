#pragma once

// Controls other applications through their automation interfaces: objects whose members are called by name.

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace zg {

/// Texts are file names, as bytes (see base/Files.h).
using AutomationValue = std::variant<bool, std::int32_t, float, std::string>;

struct AutomationArgument {
    std::string name;
    AutomationValue value;
};
using AutomationArguments = std::vector<AutomationArgument>;

/// Each operation raises the run-time error that the application reports.
class AutomationObject {
 public:
    virtual ~AutomationObject() = default;

    /// The object that a property or a method returns.
    virtual std::unique_ptr<AutomationObject> object(const std::string& member,
                                                     const AutomationArguments& arguments = {}) = 0;
    virtual void call(const std::string& member, const AutomationArguments& arguments = {}) = 0;
    virtual void put(const std::string& property, const AutomationValue& value) = 0;
};

/// Starts an application and returns its object. Nothing if the system knows no application of that name;
/// raises 429 if it does not start.
std::unique_ptr<AutomationObject> createAutomationObject(const std::string& application);

}  // namespace zg
