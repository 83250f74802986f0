#include "velm/table/textranks.h"

#include "ut/names.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cstring>
#include <numeric>
#include <string>

namespace velm::textranks {
namespace {
// Texts as bytes whose order is the texts' order. No byte of a key is 0, so that a key that ends is less than one that
// goes on.
class Keys
{
public:
    explicit Keys(std::size_t count) { m_ends.reserve(count); }

    /// UTF-8, also of what is no character; the order of code points is that of their bytes.
    void append(char32_t code)
    {
        if (code < 0x80) {
            m_bytes.push_back(static_cast<char>(code));
        } else if (code < 0x800) {
            m_bytes.push_back(static_cast<char>(0xC0 | code >> 6));
            appendRest(code, 0);
        } else if (code < 0x10000) {
            m_bytes.push_back(static_cast<char>(0xE0 | code >> 12));
            appendRest(code, 6);
        } else {
            m_bytes.push_back(static_cast<char>(0xF0 | code >> 18));
            appendRest(code, 12);
        }
    }

    /// A run of digits: longer values are greater, values of one length compare by digit.
    void appendDigits(const char16_t* digits, const char16_t* end)
    {
        constexpr std::size_t shortest = 0xF0;
        m_bytes.push_back('0'); // stands to other characters as any digit does
        const auto length = static_cast<std::size_t>(end - digits);
        if (length < shortest) {
            m_bytes.push_back(static_cast<char>(length + 1));
        } else {
            m_bytes.push_back(static_cast<char>(0xFF));
            for (int shift = 35; shift >= 0; shift -= 7)
                m_bytes.push_back(static_cast<char>(0x80 | (length >> shift & 0x7F)));
        }
        // Two digits a byte: runs of one length have their pairs at the same places.
        if (length % 2)
            m_bytes.push_back(static_cast<char>(1 + (*digits++ - u'0')));
        for (; digits != end; digits += 2)
            m_bytes.push_back(static_cast<char>(1 + 10 * (digits[0] - u'0') + (digits[1] - u'0')));
    }

    void endKey() { m_ends.push_back(m_bytes.size()); }

    std::size_t count() const { return m_ends.size(); }

    /// Eight bytes of a key as a number that compares as they do, zeros behind its end.
    std::uint64_t word(std::uint32_t key, std::size_t depth) const
    {
        const std::size_t begin = (key == 0 ? 0 : m_ends[key - 1]) + depth;
        const std::size_t end = m_ends[key];
        if (begin >= end)
            return 0;
        std::uint64_t result = 0;
        const std::size_t length = std::min(end - begin, sizeof(result));
        std::memcpy(&result, m_bytes.data() + begin, length);
        return qFromBigEndian(result);
    }

private:
    void appendRest(char32_t code, int shift)
    {
        for (; shift >= 0; shift -= 6)
            m_bytes.push_back(static_cast<char>(0x80 | (code >> shift & 0x3F)));
    }

    std::string m_bytes;
    std::vector<std::size_t> m_ends;
};

/// Sorts keys by eight bytes at a time: each run of equal words is sorted by the next ones. `tie` gives ranks to the
/// keys from begin to end, which are equal and whose first one's rank is told.
template <typename Tie>
Ranks ranksOf(const Keys& keys, Tie tie)
{
    struct Item
    {
        std::uint64_t word;
        std::uint32_t key;
    };
    struct Run
    {
        std::size_t begin;
        std::size_t end;
        std::size_t depth;
    };
    const std::size_t count = keys.count();
    std::vector<Item> items(count);
    for (std::size_t key = 0; key < count; ++key)
        items[key].key = static_cast<std::uint32_t>(key);
    Ranks ranks(count);
    std::vector<std::uint32_t> equal;
    std::vector<Run> runs{{0, count, 0}};
    while (!runs.empty()) {
        const Run run = runs.back();
        runs.pop_back();
        const auto first = items.begin() + static_cast<std::ptrdiff_t>(run.begin);
        const auto last = items.begin() + static_cast<std::ptrdiff_t>(run.end);
        for (auto item = first; item != last; ++item)
            item->word = keys.word(item->key, run.depth);
        // Bytes that all have in common tell nothing: the words begin behind them.
        std::uint64_t difference = 0;
        for (auto item = first; item != last; ++item)
            difference |= item->word ^ first->word;
        if (const int common = difference ? std::countl_zero(difference) / 8 : 0) {
            runs.push_back({run.begin, run.end, run.depth + static_cast<std::size_t>(common)});
            continue;
        }
        const auto byWord = [](const Item& left, const Item& right) { return left.word < right.word; };
        if (difference)
            std::sort(first, last, byWord);
        for (auto begin = first; begin != last;) {
            const auto end =
                std::find_if(begin + 1, last, [word = begin->word](const Item& item) { return item.word != word; });
            const auto place = static_cast<std::size_t>(begin - items.begin());
            const auto length = static_cast<std::size_t>(end - begin);
            if (length == 1) {
                ranks[begin->key] = static_cast<std::uint32_t>(place);
            } else if (begin->word & 0xFF) {
                runs.push_back({place, place + length, run.depth + sizeof(std::uint64_t)});
            } else { // the keys end here
                equal.clear();
                for (auto item = begin; item != end; ++item)
                    equal.push_back(item->key);
                tie(equal, static_cast<std::uint32_t>(place), ranks);
            }
            begin = end;
        }
    }
    return ranks;
}

bool isDigit(char16_t character)
{
    return character >= u'0' && character <= u'9';
}

void appendNatural(Keys& keys, const QString& text)
{
    const auto* at = reinterpret_cast<const char16_t*>(text.constData());
    const char16_t* const end = at + text.size();
    while (at != end && *at) {
        if (isDigit(*at)) {
            const char16_t* const runEnd = std::find_if_not(at, end, isDigit);
            keys.appendDigits(std::find_if(at, runEnd, [](char16_t digit) { return digit != u'0'; }), runEnd);
            at = runEnd;
        } else if (*at < 0x80) {
            const bool upper = *at >= u'A' && *at <= u'Z';
            keys.append(upper ? static_cast<char32_t>(*at + (u'a' - u'A')) : *at);
            ++at;
        } else {
            char32_t code = *at++;
            if (QChar::isHighSurrogate(code) && at != end && QChar::isLowSurrogate(*at))
                code = QChar::surrogateToUcs4(static_cast<char16_t>(code), *at++);
            else if (QChar::isSurrogate(code))
                code = QChar::ReplacementCharacter;
            keys.append(QChar::toLower(code));
        }
    }
    keys.endKey();
}

void appendFolded(Keys& keys, const QString& text)
{
    // As QString::compare() reads: a high surrogate by itself, the low one behind it as the whole character.
    char16_t last = 0;
    for (const QChar character : text) {
        char32_t code = character.unicode();
        if (character.isLowSurrogate() && QChar::isHighSurrogate(last))
            code = QChar::surrogateToUcs4(last, character.unicode());
        last = character.unicode();
        keys.append(QChar::toCaseFolded(code) + 1);
    }
    keys.endKey();
}
} // namespace

Ranks natural(const std::vector<QString>& texts)
{
    Keys keys(texts.size());
    for (const QString& text : texts)
        appendNatural(keys, text);
    // The keys don't tell leading zeros and case apart.
    return ranksOf(keys, [&texts](std::vector<std::uint32_t>& equal, std::uint32_t place, Ranks& ranks) {
        const QString& first = texts[equal.front()];
        if (std::all_of(equal.begin(), equal.end(), [&](std::uint32_t key) { return texts[key] == first; })) {
            for (const std::uint32_t key : equal)
                ranks[key] = place;
            return;
        }
        std::vector<std::wstring> wide;
        wide.reserve(equal.size());
        for (const std::uint32_t key : equal)
            wide.push_back(texts[key].toStdWString());
        const Ranks among = by(equal.size(), [&wide](std::uint32_t left, std::uint32_t right) {
            return ut::strCmpAlphanum(wide[left].c_str(), wide[right].c_str(), 0) < 0;
        });
        for (std::size_t i = 0; i < equal.size(); ++i)
            ranks[equal[i]] = place + among[i];
    });
}

Ranks caseInsensitive(const std::vector<QString>& texts)
{
    Keys keys(texts.size());
    for (const QString& text : texts)
        appendFolded(keys, text);
    return ranksOf(keys, [](const std::vector<std::uint32_t>& equal, std::uint32_t place, Ranks& ranks) {
        for (const std::uint32_t key : equal)
            ranks[key] = place;
    });
}

Ranks by(std::size_t count, const std::function<bool(std::uint32_t, std::uint32_t)>& lessThan)
{
    std::vector<std::uint32_t> order(count);
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(), std::ref(lessThan));
    Ranks ranks(count);
    for (std::size_t place = 1; place < count; ++place) {
        const bool isGreater = lessThan(order[place - 1], order[place]);
        ranks[order[place]] = isGreater ? static_cast<std::uint32_t>(place) : ranks[order[place - 1]];
    }
    return ranks;
}
} // namespace velm::textranks
