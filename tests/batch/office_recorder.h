#pragma once

/// Under these the recorder is entered among the applications.
constexpr const wchar_t* slidesClass = L"{5D2B9A10-6C1E-4B57-9C0E-3A8E5B7F1C01}";
constexpr const wchar_t* pagesClass = L"{5D2B9A10-6C1E-4B57-9C0E-3A8E5B7F1C02}";
