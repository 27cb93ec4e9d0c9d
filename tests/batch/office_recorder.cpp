// A library that stands for both office applications: its objects have every member that is asked for, and
// each call becomes a line of the file that ZG_RECORD names. The call of the number in ZG_FAIL_AT fails.

#include <cstdio>
#include <string>
#include <vector>

// After them: it has macros for many a plain word.
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
// After it: it needs the types of the system.
#include <oaidl.h>
#include <objbase.h>
#include <oleauto.h>

#include "tests/batch/office_recorder.h"

namespace {

std::vector<std::wstring>& members() {
    static std::vector<std::wstring> names;
    return names;
}

std::string narrow(const std::wstring& text) { return {text.begin(), text.end()}; }

std::wstring environment(const wchar_t* name) {
    wchar_t value[1024] = {};
    return {value, GetEnvironmentVariableW(name, value, 1024)};
}

int written = 0;

void note(const std::string& line) {
    std::FILE* const file = _wfopen(environment(L"ZG_RECORD").c_str(), L"ab");
    if (file == nullptr) return;
    std::fprintf(file, "%s\n", line.c_str());
    std::fclose(file);
}

std::string textOf(const VARIANT& value) {
    char number[32] = {};
    switch (value.vt) {
        case VT_BOOL:
            return value.boolVal != VARIANT_FALSE ? "True" : "False";
        case VT_I4:
            return std::to_string(value.lVal);
        case VT_R4:
            std::snprintf(number, sizeof number, "%.2ff", static_cast<double>(value.fltVal));
            return number;
        case VT_BSTR:
            return "\"" + narrow({value.bstrVal, SysStringLen(value.bstrVal)}) + "\"";
        default:
            return "of type " + std::to_string(value.vt);
    }
}

class Recorder : public IDispatch {
 public:
    explicit Recorder(std::string path) : path_(std::move(path)) {}
    virtual ~Recorder() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** found) override {
        *found = id == IID_IUnknown || id == IID_IDispatch ? this : nullptr;
        if (*found == nullptr) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++count_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --count_;
        if (left > 0) return left;
        if (path_.find('.') == std::string::npos) note("release " + path_);
        delete this;
        return 0;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        for (UINT i = 0; i < count; ++i) {
            members().emplace_back(names[i]);
            ids[i] = static_cast<DISPID>(members().size());
        }
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD kind, DISPPARAMS* given,
                                     VARIANT* result, EXCEPINFO* told, UINT*) override {
        std::string step = path_ + "." + name(member);
        if ((kind & DISPATCH_PROPERTYPUT) != 0)
            step += " := " + textOf(given->rgvarg[0]);
        else if (given->cArgs > 0)
            step += "(" + argumentsOf(*given) + ")";
        note(step);
        if (std::to_string(++written) == narrow(environment(L"ZG_FAIL_AT"))) {
            told->wCode = 1004;
            told->bstrDescription = SysAllocString(L"it broke");
            return DISP_E_EXCEPTION;
        }
        if (result == nullptr) return S_OK;
        auto* const inner = new Recorder(step);
        inner->AddRef();
        result->vt = VT_DISPATCH;
        result->pdispVal = inner;
        return S_OK;
    }

 private:
    static std::string name(DISPID member) {
        return narrow(members().at(static_cast<std::size_t>(member) - 1));
    }

    static std::string argumentsOf(const DISPPARAMS& given) {
        std::string text;
        for (UINT i = 0; i < given.cArgs; ++i) {
            if (i > 0) text += ", ";
            text += i < given.cNamedArgs ? name(given.rgdispidNamedArgs[i]) + " := " : "without a name: ";
            text += textOf(given.rgvarg[i]);
        }
        return text;
    }

    std::string path_;
    ULONG count_ = 0;
};

class Factory : public IClassFactory {
 public:
    explicit Factory(std::string application) : application_(std::move(application)) {}
    virtual ~Factory() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** found) override {
        *found = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
        return *found == nullptr ? E_NOINTERFACE : S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }  // it lasts as long as the library
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** made) override {
        note("create " + application_ + ".Application");
        written = 1;
        if (narrow(environment(L"ZG_FAIL_AT")) == "1") return E_FAIL;
        auto* const recorder = new Recorder(application_);
        const HRESULT result = recorder->QueryInterface(id, made);
        if (FAILED(result)) delete recorder;
        return result;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
    std::string application_;
};

}  // namespace

extern "C" {

HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID application, REFIID id, void** found) {
    static Factory slides("PowerPoint");
    static Factory pages("Word");
    CLSID slidesId = {};
    CLSIDFromString(slidesClass, &slidesId);
    return (application == slidesId ? slides : pages).QueryInterface(id, found);
}

HRESULT STDAPICALLTYPE DllCanUnloadNow() { return S_FALSE; }
}
