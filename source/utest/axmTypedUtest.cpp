#include "axmTypedUtest.h"

#include "axmModelUtest.h"
#include "axmUtestAccess.h"
#include "axmUtestGroup.h"
#include "model/axmModelRandom.h"
#include "model/axmModelText.h"

#include <apStringLocaleDoubleParser.h>
#include <apStringLocaleIntParser.h>
#include <utUnitTest.h>

#include <climits>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <limits>
#include <optional>
#include <string>

using namespace axmUtestAccess;

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;

char const file[] = "source/utest/axmTypedUtest";

apString wide(std::wstring const& text)
{
  return apString(std::wstring_view(text));
}

// Sets a locale for as long as it lives.
class Locale
{
public:
  Locale() : before(std::setlocale(LC_NUMERIC, nullptr)) {}
  Locale(Locale const&) = delete;
  Locale& operator=(Locale const&) = delete;
  ~Locale() { std::setlocale(LC_NUMERIC, before.c_str()); }

  // Sets one with a decimal comma; false if there is none.
  static bool set_comma()
  {
    // The last one is made by `axm conform`, for systems that have none.
    for (char const* const name :
      {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "German", "fr_FR.UTF-8", "nl_NL.UTF-8", "axm_utest_comma"})
      if (std::setlocale(LC_NUMERIC, name) != nullptr && std::strcmp(std::localeconv()->decimal_point, ",") == 0)
        return true;
    return false;
  }

private:
  std::string const before;
};

wchar_t point()
{
  char text[8];
  std::snprintf(text, sizeof text, "%2.1f", 1.2);
  return static_cast<wchar_t>(text[1]);
}

std::optional<bool> promised_bool(std::wstring const& text)
{
  if (text == L"true" || text == L"1")
    return true;
  if (text == L"false" || text == L"0")
    return false;
  return {};
}

std::optional<int> promised_int(std::wstring const& text)
{
  auto const result = apStringLocaleIntParser::parse(wide(text));
  bool const is_whole = result.success && static_cast<std::size_t>(result.position) == text.size();
  return is_whole ? std::optional<int>(result.value) : std::nullopt;
}

std::optional<double> promised_locale(std::wstring const& text)
{
  auto const result = apStringLocaleDoubleParser::parse(wide(text));
  bool const is_whole = result.success && static_cast<std::size_t>(result.position) == text.size();
  return is_whole ? std::optional<double>(result.value) : std::nullopt;
}

std::optional<double> promised_double(std::wstring text)
{
  wchar_t const separator = point();
  if (separator == L'.')
    return promised_locale(text);
  if (text.find(separator) != std::wstring::npos)
    return {};
  for (wchar_t& character : text)
    if (character == L'.')
      character = separator;
  return promised_locale(text);
}

// Texts that every run asks for, and that are drawn besides.
wchar_t const* const words[] = {L"true", L"false", L"TRUE", L"True", L"truex", L"tru", L" true", L"false ", L"1", L"0",
  L"01", L"+1", L"1.0", L"00", L"yes", L"", L" ", L"inf", L"-infinity", L"nan", L"NaN", L"0x10", L"1e", L".", L"-",
  L"+", L"e5", L"1 2", L"true\n", L"\u0661", L"1\u00A0", L"2147483647", L"-2147483648", L"2147483648", L"-2147483649",
  L"2147483646", L"-2147483647", L"4294967295", L"4294967296", L"-4294967297", L"18446744073709551616", L"-0", L"+0",
  L"- 1", L"+-1", L"1-", L"1e0", L"1e2", L"1,5", L"1.5", L"1,000", L"1_000", L"1'000", L"0b1", L"010", L"0x", L"0x1p4",
  L"1e+", L"1e-", L"1e1.5", L".e1", L"5.", L".5", L"-.5", L"+.5", L"1e308", L"1e309", L"-1e309", L"1e-400", L"4.9e-324",
  L"1.7976931348623157e308", L"1.7976931348623159e308", L"0.1000000000000000055511151231257827", L"9007199254740993",
  L"Infinity", L"-inf", L"+inf", L"INF", L"in", L"infin", L"nan(1)", L"-nan", L"NAN", L"1\u00A0", L"\u00A01",
  L"\u20031", L"1\u2003", L"\u30001", L"\uFEFF1", L"\u200B1", L"\u22121", L"\uFF11", L"\u0967", L"\u00BD", L"1\u0301",
  L"\t1", L"\n1", L"\r1", L"\v1", L"\f1", L"1\t", L"1\r", L"1\v", L" 1 ", L"truetrue", L"true ", L"\ttrue", L"t", L"f",
  L"T", L"FALSE", L"False", L"falsey", L"on", L"off", L"no", L"2", L"-1", L"10", L"11", L"1 ", L" 0",
  L"00000000000000000000000000000000000000001", L"-000000000000000000002147483648",
  L"00000000000000000000000000000000000002147483648",
  L"0.00000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000001",
  L"100000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000.5e-90"};

std::wstring drawn_text(axmModelRandom& random)
{
  if (random.once_in(3))
    return random.one_of(words);
  wchar_t const* const before[] = {L"", L"", L"", L"", L" ", L"\t", L"\n ", L"\u2003"};
  wchar_t const* const signs[] = {L"", L"", L"", L"-", L"+", L"--", L"- "};
  wchar_t const* const digits[] = {L"0", L"1", L"7", L"12", L"007", L"123456789", L"2147483646", L"2147483647",
    L"2147483648", L"4294967295", L"4294967296", L"99999999999999999999", L"0.1", L"12345678901234567", L""};
  wchar_t const* const fractions[] = {L"", L"", L"", L".", L".5", L",5", L".0", L".5.5", L".12345678901234567", L"."};
  wchar_t const* const exponents[] = {L"", L"", L"", L"e5", L"E-3", L"e+2", L"e", L"e400", L"e-400", L"e 5"};
  wchar_t const* const after[] = {L"", L"", L"", L"", L" ", L"x", L"\n", L"\t", L"f"};
  return std::wstring(random.one_of(before)) + random.one_of(signs) + random.one_of(digits) + random.one_of(fractions) +
         random.one_of(exponents) + random.one_of(after);
}

bool equal(double left, double right)
{
  return std::memcmp(&left, &right, sizeof left) == 0 || (std::isnan(left) && std::isnan(right));
}

bool equal(int left, int right)
{
  return left == right;
}

// Whether a getter gives what it must, or fails with the value as it was.
template <class Value, class Get>
bool gets(std::optional<Value> const& promised, Value before, Get get)
{
  Value value = before;
  bool const got = get(value);
  return got == promised.has_value() && equal(value, got ? *promised : before);
}

// Names under which values are set and asked for: what holds for one holds for all.
apString drawn_name(axmModelRandom& random)
{
  if (random.once_in(8))
    return wide(std::wstring(static_cast<std::size_t>(1 + random.below(300)), L'n'));
  wchar_t const* const names[] = {L"N", L"p:k", L"\u0444", L"a.b-c_1", L"\U00010437", L"k"};
  return random.one_of(names);
}

bool getters_are_right(axmElement& element, apString const& name, std::wstring const& text)
{
  element.setAttribute(name, wide(text));
  auto const truth = promised_bool(text);
  apString as_text = APSTRING("before");
  return gets<int>(truth ? std::optional<int>(*truth ? 1 : 0) : std::nullopt, truth && *truth ? 0 : 1,
           [&](int& value)
           {
             bool read = value != 0;
             bool const got = element.get_attribute(name, read);
             value = read ? 1 : 0;
             return got;
           }) &&
         gets<int>(promised_int(text), -99, [&](int& value) { return element.get_attribute(name, value); }) &&
         gets<double>(
           promised_double(text), -99.5, [&](double& value) { return element.get_attribute(name, value); }) &&
         gets<double>(
           promised_locale(text), -99.5, [&](double& value) { return element.get_attribute_locale(name, value); }) &&
         element.get_attribute(name, as_text) && as_text == wide(text);
}

double drawn_double(axmModelRandom& random)
{
  double const borders[] = {0.0, -0.0, 1.0, -1.5, 0.1, 1e22, 1e-7, 123456789012345.0, 1234567890123456.0,
    12345678901234567.0, 1.7976931348623157e308, 5e-324, 2.2250738585072014e-308, 0.30000000000000004, 1e16, 1e15,
    std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
  if (random.once_in(2))
    return random.one_of(borders);
  std::uint64_t const bits = random.next();
  double value = 0;
  std::memcpy(&value, &bits, sizeof value);
  return std::isnan(value) ? 0.5 : value;
}

apString printed(char const* format, double value, bool with_point)
{
  char text[40];
  std::snprintf(text, sizeof text, format, value);
  apString result(text);
  if (with_point)
    result.replace_all(apString(std::wstring_view(std::wstring(1, point()))), APSTRING("."));
  return result;
}

bool setters_are_right(axmElement& element, apString const& name, axmModelRandom& random)
{
  auto const holds = [&](bool set, apString const& text) { return set && element.getAttribute(name) == text; };
  int const counts[] = {0, 1, -1, INT_MAX, INT_MIN, INT_MAX - 1, 255, 65536, static_cast<int>(random.next())};
  unsigned int const sizes[] = {0U, 1U, UINT_MAX, 2147483648U, static_cast<unsigned int>(random.next())};
  int const count = random.one_of(counts);
  unsigned int const size = random.one_of(sizes);
  bool const truth = random.once_in(2);
  double const value = drawn_double(random);
  std::wstring const text = drawn_text(random);
  return holds(element.set_attribute(name, count), apString(std::to_string(count).c_str())) &&
         holds(element.set_attribute(name, size), apString(std::to_string(size).c_str())) &&
         holds(element.set_attribute(name, truth), truth ? APSTRING("true") : APSTRING("false")) &&
         holds(element.set_attribute(name, value), printed("%.16g", value, true)) &&
         holds(element.set_attribute_locale(name, value), printed("%.16g", value, false)) &&
         holds(element.set_attribute(name, wide(text)), wide(text));
}

bool run_getters(utUnitTest& tester, axmElement& element, axmModelRandom random, int rounds)
{
  int const fixed = static_cast<int>(std::size(words));
  for (int round = 0; round < fixed + rounds; ++round)
  {
    std::wstring const text = round < fixed ? words[round] : drawn_text(random);
    apString const name = drawn_name(random);
    if (getters_are_right(element, name, text))
      continue;
    tester.printf("a getter does not do what it must with the text %s under the name %s",
      axmModelText::quoted(text).c_str(), axmModelText::quoted(name.view()).c_str());
    return false;
  }
  return true;
}

// What is not a number comes back as that, however it is written.
bool keeps_not_a_number(axmElement& element)
{
  apString const name = APSTRING("N");
  double value = 1;
  double in_locale = 1;
  return element.set_attribute(name, std::numeric_limits<double>::quiet_NaN()) && element.get_attribute(name, value) &&
         element.set_attribute_locale(name, std::numeric_limits<double>::quiet_NaN()) &&
         element.get_attribute_locale(name, in_locale) && std::isnan(value) && std::isnan(in_locale);
}

bool run_setters(axmElement& element, axmModelRandom random, int rounds)
{
  if (!keeps_not_a_number(element))
    return false;
  for (int round = 0; round < rounds; ++round)
    if (!setters_are_right(element, drawn_name(random), random))
      return false;
  return true;
}
}

axmTypedUtest::axmTypedUtest(utUnitTest* given_tester)
  : axmTypedUtest(given_tester, axmModelUtest::default_seed, axmModelUtest::default_rounds)
{
}

axmTypedUtest::axmTypedUtest(utUnitTest* given_tester, std::uint64_t given_seed, int given_rounds)
  : tester(given_tester),
    seed(given_seed),
    rounds(given_rounds * 10)
{
}

axmTypedUtest::~axmTypedUtest() = default;

void axmTypedUtest::run_tests(Factory const& factory) const
{
  using Utest = axmTypedUtest;
  axmUtestEntry<Utest, Factory const&> const groups[] = {
    {&Utest::test_getters, "axmTypedUtest::test_getters"},
    {&Utest::test_setters, "axmTypedUtest::test_setters"},
    {&Utest::test_decimal_comma, "axmTypedUtest::test_decimal_comma"},
  };
  axm_run_groups(*this, factory, groups, tester, file);
}

void axmTypedUtest::test_getters(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmTypedUtest::test_getters");
  auto const root = root_of(factory->createDocument(APSTRING("root")));
  group.check(root != nullptr && run_getters(*tester, *root, axmModelRandom(seed), rounds),
    "every getter gives what it must", __LINE__, "texts around the borders of the types");
}

void axmTypedUtest::test_setters(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmTypedUtest::test_setters");
  auto const root = root_of(factory->createDocument(APSTRING("root")));
  group.check(root != nullptr && run_setters(*root, axmModelRandom(seed), rounds), "every setter writes what it must",
    __LINE__, "values around the borders of the types");
}

void axmTypedUtest::test_decimal_comma(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmTypedUtest::test_decimal_comma");
  auto const root = root_of(factory->createDocument(APSTRING("root")));
  Locale const back_at_the_end;
  if (!Locale::set_comma())
    tester->printf("no locale with a decimal comma is installed: these checks run under a decimal point");
  group.check(root != nullptr && run_getters(*tester, *root, axmModelRandom(seed + 1), rounds),
    "every getter gives what it must", __LINE__, "under a decimal comma");
  group.check(root != nullptr && run_setters(*root, axmModelRandom(seed + 1), rounds),
    "every setter writes what it must", __LINE__, "under a decimal comma");
}
