#include "platform/Automation.h"

namespace zg {

std::unique_ptr<AutomationObject> createAutomationObject(const std::string&) { return nullptr; }

}  // namespace zg
