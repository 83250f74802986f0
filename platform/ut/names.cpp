#include "ut/names.h"

#include <QChar>

#include <algorithm>

namespace ut {
namespace {
bool isDigit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

// Independent of the locale, unlike towlower(): an order must not change while a process runs.
wchar_t lower(wchar_t character)
{
    return static_cast<wchar_t>(QChar::toLower(static_cast<char32_t>(character)));
}

const wchar_t* skipZeros(const wchar_t* text)
{
    while (*text == L'0')
        ++text;
    return text;
}

const wchar_t* skipDigits(const wchar_t* text)
{
    while (isDigit(*text))
        ++text;
    return text;
}

int threeWay(auto left, auto right)
{
    return left < right ? -1 : left > right ? 1 : 0;
}

// Compares the values of two digit runs that begin at significant digits.
int compareDigits(const wchar_t* left, const wchar_t* leftEnd, const wchar_t* right, const wchar_t* rightEnd)
{
    if (const int byLength = threeWay(leftEnd - left, rightEnd - right))
        return byLength;
    while (left != leftEnd && *left == *right) {
        ++left;
        ++right;
    }
    return left == leftEnd ? 0 : threeWay(*left, *right);
}

// As text, so that no number is too long and leading zeros stay.
void increment(std::wstring& digits)
{
    auto digit = digits.rbegin();
    for (; digit != digits.rend() && *digit == L'9'; ++digit)
        *digit = L'0';
    if (digit == digits.rend())
        digits.insert(digits.begin(), L'1');
    else
        ++*digit;
}
} // namespace

OdString getForbiddenCharacters()
{
    return L"\\/:*?\"<>|,;=`";
}

OdString makeUniqueName(const OdString& name, const std::function<bool(const OdString&)>& isUnique, bool replaceNumber,
                        const wchar_t& separator)
{
    std::wstring stem = name.wide();
    std::wstring number = L"0";
    if (replaceNumber) {
        const auto digits = std::find_if_not(stem.rbegin(), stem.rend(), isDigit).base();
        if (digits != stem.end() && digits != stem.begin() && *(digits - 1) == separator) {
            number.assign(digits, stem.end());
            stem.erase(digits - 1, stem.end());
        }
    }
    OdString candidate = name;
    while (isUnique && !isUnique(candidate)) {
        increment(number);
        candidate = stem;
        candidate += separator;
        candidate += number;
    }
    return candidate;
}

int strCmpAlphanum(const wchar_t* left, const wchar_t* right, int /*flags*/)
{
    left = left ? left : L"";
    right = right ? right : L"";
    // Zeros and case count only between texts that are equal otherwise, or the order would not be transitive.
    int byZeros = 0;
    int byCase = 0;
    while (*left && *right) {
        if (isDigit(*left) && isDigit(*right)) {
            const wchar_t* leftEnd = skipDigits(left);
            const wchar_t* rightEnd = skipDigits(right);
            const wchar_t* leftDigits = skipZeros(left);
            const wchar_t* rightDigits = skipZeros(right);
            if (const int byValue = compareDigits(leftDigits, leftEnd, rightDigits, rightEnd))
                return byValue;
            if (byZeros == 0)
                byZeros = threeWay(leftDigits - left, rightDigits - right);
            left = leftEnd;
            right = rightEnd;
        } else {
            if (const int byCharacter = threeWay(lower(*left), lower(*right)))
                return byCharacter;
            if (byCase == 0)
                byCase = threeWay(*left, *right);
            ++left;
            ++right;
        }
    }
    if (*left || *right)
        return *left ? 1 : -1;
    return byZeros != 0 ? byZeros : byCase;
}
} // namespace ut
