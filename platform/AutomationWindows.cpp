// Before it: it keeps the system's header short, and free of words that the standard library uses.
#include "base/WindowsNames.h"
// After it: these need the types of the system.
#include <oaidl.h>
#include <objbase.h>
#include <oleauto.h>

#include "base/RunTimeError.h"
#include "platform/Automation.h"

namespace zg {

namespace {

constexpr int automationError = 440;

class Variant {
 public:
    Variant() { VariantInit(&value_); }
    explicit Variant(const AutomationValue& value) : Variant() {
        std::visit([this](const auto& one) { set(one); }, value);
    }
    ~Variant() { VariantClear(&value_); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;

    VARIANT* get() { return &value_; }

 private:
    void set(bool value) {
        value_.vt = VT_BOOL;
        value_.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    }
    void set(std::int32_t value) {
        value_.vt = VT_I4;
        value_.lVal = value;
    }
    void set(float value) {
        value_.vt = VT_R4;
        value_.fltVal = value;
    }
    void set(const std::string& value) {
        const std::wstring wide = wideUnits(value);
        value_.vt = VT_BSTR;
        value_.bstrVal = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    }

    VARIANT value_;
};

std::string textOf(BSTR text) { return text == nullptr ? "" : narrowUnits({text, SysStringLen(text)}); }

std::string messageOf(HRESULT result) {
    wchar_t text[512] = {};
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                        static_cast<DWORD>(result), 0, text, 512, nullptr);
    std::string message = narrowUnits({text, length});
    while (!message.empty() && (message.back() == '\n' || message.back() == '\r')) message.pop_back();
    return message.empty() ? "Automation error" : message;
}

/// What the application says of its failure, or else what the system says.
[[noreturn]] void fail(HRESULT result, EXCEPINFO& told) {
    if (result == DISP_E_EXCEPTION && told.pfnDeferredFillIn != nullptr) told.pfnDeferredFillIn(&told);
    const std::string description = result == DISP_E_EXCEPTION ? textOf(told.bstrDescription) : "";
    const int number = result == DISP_E_EXCEPTION && told.wCode != 0 ? told.wCode : automationError;
    SysFreeString(told.bstrSource);
    SysFreeString(told.bstrDescription);
    SysFreeString(told.bstrHelpFile);
    throw RunTimeError(number, description.empty() ? messageOf(result) : description);
}

class DispatchObject : public AutomationObject {
 public:
    explicit DispatchObject(IDispatch* dispatch) : dispatch_(dispatch) {}
    ~DispatchObject() override { dispatch_->Release(); }
    DispatchObject(const DispatchObject&) = delete;
    DispatchObject& operator=(const DispatchObject&) = delete;

    std::unique_ptr<AutomationObject> object(const std::string& member,
                                             const AutomationArguments& arguments) override {
        Variant result;
        invoke(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments, result.get());
        if (result.get()->vt != VT_DISPATCH || result.get()->pdispVal == nullptr)
            throw RunTimeError(automationError, "Automation error: " + member + " gave no object");
        IDispatch* const found = result.get()->pdispVal;
        found->AddRef();
        return std::make_unique<DispatchObject>(found);
    }

    void call(const std::string& member, const AutomationArguments& arguments) override {
        Variant result;
        invoke(member, DISPATCH_METHOD, arguments, result.get());
    }

    void put(const std::string& property, const AutomationValue& value) override {
        DISPID member = numbersOf(property, {}).front();
        DISPID assigned = DISPID_PROPERTYPUT;
        Variant one(value);
        DISPPARAMS parameters = {one.get(), &assigned, 1, 1};
        invokeWith(member, DISPATCH_PROPERTYPUT, parameters, nullptr);
    }

 private:
    /// Of the member and, after it, of the names of its arguments.
    std::vector<DISPID> numbersOf(const std::string& member, const AutomationArguments& arguments) {
        std::vector<std::wstring> names = {wideUnits(member)};
        for (const AutomationArgument& argument : arguments) names.push_back(wideUnits(argument.name));
        std::vector<wchar_t*> texts;
        for (std::wstring& name : names) texts.push_back(name.data());
        std::vector<DISPID> numbers(names.size());
        EXCEPINFO nothing = {};
        const HRESULT result = dispatch_->GetIDsOfNames(
            IID_NULL, texts.data(), static_cast<UINT>(texts.size()), LOCALE_USER_DEFAULT, numbers.data());
        if (FAILED(result)) fail(result, nothing);
        return numbers;
    }

    void invoke(const std::string& member, WORD kind, const AutomationArguments& arguments, VARIANT* result) {
        std::vector<DISPID> numbers = numbersOf(member, arguments);
        std::vector<std::unique_ptr<Variant>> values;
        std::vector<VARIANT> given;
        for (const AutomationArgument& argument : arguments) {
            values.push_back(std::make_unique<Variant>(argument.value));
            given.push_back(*values.back()->get());  // what it holds stays with the values
        }
        DISPPARAMS parameters = {given.data(), numbers.data() + 1, static_cast<UINT>(given.size()),
                                 static_cast<UINT>(given.size())};
        if (given.empty()) parameters = {nullptr, nullptr, 0, 0};
        invokeWith(numbers.front(), kind, parameters, result);
    }

    void invokeWith(DISPID member, WORD kind, DISPPARAMS& parameters, VARIANT* result) {
        EXCEPINFO told = {};
        const HRESULT outcome = dispatch_->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                                                  result, &told, nullptr);
        if (FAILED(outcome)) fail(outcome, told);
    }

    IDispatch* dispatch_;
};

}  // namespace

std::unique_ptr<AutomationObject> createAutomationObject(const std::string& application) {
    // The toolkit has done this already in a program with a window; then it does no harm.
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    CLSID id = {};
    if (FAILED(CLSIDFromProgID(wideUnits(application).c_str(), &id))) return nullptr;
    void* object = nullptr;
    const HRESULT result = CoCreateInstance(id, nullptr, CLSCTX_SERVER, IID_IDispatch, &object);
    if (FAILED(result)) raise(ErrorNumber::CannotCreateObject);
    return std::make_unique<DispatchObject>(static_cast<IDispatch*>(object));
}

}  // namespace zg
