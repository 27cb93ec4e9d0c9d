#pragma once

// All conversions between numbers and text, independent of the platform's locale, so that a value reads and
// prints the same on every machine.

#include <cstdint>
#include <string>
#include <string_view>

namespace zg {

/// The longest number at the start of a text, blanks skipped: "25%" is 25, "1,5" is 1, "" is 0. Never fails.
double val(std::string_view text);

/// The whole text as a number: blanks at both ends, a sign, grouping commas in the whole part and an E or D
/// exponent are allowed. Raises 13 for anything else (an empty text too) and 6 for a number too large.
double toDouble(std::string_view text);

/// Like toDouble, to the nearest single; raises 6 beyond the range of a single.
float toSingle(std::string_view text);

/// Like toDouble, rounded half to even; raises 6 if the result does not fit the width.
std::int16_t toInt16(std::string_view text);
std::int32_t toInt32(std::string_view text);

/// A number rounded half to even; raises 6 if it does not fit the width or is not a number.
std::int16_t toInt16(double value);
std::int32_t toInt32(double value);

/// A double narrowed to the nearest single; raises 6 beyond the range of a single.
float toSingle(double value);

/// Rounds to 0 to 22 decimals, halves to even.
double roundHalfEven(double value, int decimals = 0);

/// The shortest general form with up to seven significant digits: "0.5", "1.671168E+07". The exponent form is
/// used from 1E+7 on, and below 1 if more than seven decimals would be needed.
std::string singleText(float value);

/// The same with fifteen digits: "1.74532925199433E-02".
std::string doubleText(double value);

/// "True" or "False".
std::string boolText(bool value);

/// "True" or "False" in any case, blanks around allowed, or a number (0 is false); raises 13 for anything
/// else.
bool toBool(std::string_view text);

/// At least two digits, halves rounded away from zero: 7 gives "07". The text form raises 13 for text that is
/// not a number.
std::string format00(double value);
std::string format00(std::string_view text);

/// Two decimals and a signed exponent of at least two digits: "9.72E-01".
std::string formatScientific(double value);

/// Integer division toward zero and its remainder, which takes the sign of the dividend; raises 11 for
/// divisor 0 and 6 if the result does not fit.
std::int32_t idiv(std::int32_t dividend, std::int32_t divisor);
std::int32_t imod(std::int32_t dividend, std::int32_t divisor);

/// The largest whole number not above the value.
double intFloor(double value);

}  // namespace zg
