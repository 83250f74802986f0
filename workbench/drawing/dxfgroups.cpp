#include "drawing/dxfgroups.h"

#include "drawing/dxftext.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fstream>

namespace workbench {

namespace {

constexpr std::uintmax_t largestFile = 1u << 30;
constexpr double largestCoordinate = 1e15;

bool isBetween(int code, int first, int last)
{
    return code >= first && code <= last;
}

bool isRealCode(int code)
{
    return isBetween(code, 10, 59) || isBetween(code, 110, 149) || isBetween(code, 210, 239) ||
           isBetween(code, 460, 469) || isBetween(code, 1010, 1059);
}

bool isIntegerCode(int code)
{
    return isBetween(code, 60, 79) || isBetween(code, 90, 99) || isBetween(code, 160, 179) ||
           isBetween(code, 270, 299) || isBetween(code, 370, 389) || isBetween(code, 400, 409) ||
           isBetween(code, 420, 429) || isBetween(code, 440, 459) || isBetween(code, 1060, 1071);
}

std::string_view trimmed(std::string_view text)
{
    const auto isSpace = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

/// Values that a person wrote keep the spaces at their ends.
std::string_view withoutReturn(std::string_view text)
{
    if (!text.empty() && text.back() == '\r')
        text.remove_suffix(1);
    return text;
}

std::string readFile(const std::filesystem::path& file)
{
    std::error_code problem;
    const std::filesystem::file_status status = std::filesystem::status(file, problem);
    if (status.type() == std::filesystem::file_type::not_found)
        throw DxfError("there is no such file.");
    if (status.type() == std::filesystem::file_type::directory)
        throw DxfError("it is a folder, not a drawing.");
    if (status.type() != std::filesystem::file_type::regular)
        throw DxfError("it is not an ordinary file.");
    const std::uintmax_t size = std::filesystem::file_size(file, problem);
    if (problem || size > largestFile)
        throw DxfError("it is larger than 1 GB.");
    if (size == 0)
        throw DxfError("the file is empty.");
    std::ifstream stream(file, std::ios::binary);
    std::string text(size, '\0');
    if (!stream || !stream.read(text.data(), static_cast<std::streamsize>(size)))
        throw DxfError("it can't be opened for reading.");
    return text;
}

/// Walks over the lines of a file and says what is wrong with them.
class GroupChecker
{
public:
    GroupChecker(DxfGroups& groups, const DxfObjectFilter& filter)
        : m_groups(groups), m_filter(filter), m_text(groups.text)
    {}

    void check(const std::function<bool(double)>& progress);

private:
    std::string_view nextLine();
    bool atEnd() const { return m_position >= m_text.size(); }
    void checkGroup(int code, std::string_view value);
    void checkStructure(std::string_view value);
    void checkNumber(int code, std::string_view value) const;
    [[noreturn]] void fail(std::size_t line, const std::string& problem) const;
    [[noreturn]] void failCutOff() const;
    std::string quoted(std::string_view value) const;
    std::string holds(std::string_view value) const;

    DxfGroups& m_groups;
    const DxfObjectFilter& m_filter;
    std::string_view m_text;
    std::size_t m_position = 0;
    std::size_t m_line = 0;     // of the line read last, from 1
    std::string_view m_section; // its name, while one is open
    bool m_inSection = false;
    bool m_sectionUnnamed = false; // the group before opened a section
    bool m_started = false;
};

std::string_view GroupChecker::nextLine()
{
    ++m_line;
    const std::size_t end = std::min(m_text.find('\n', m_position), m_text.size());
    const std::string_view line = m_text.substr(m_position, end - m_position);
    m_position = end + 1;
    return line;
}

void GroupChecker::check(const std::function<bool(double)>& progress)
{
    const std::size_t zero = m_text.find('\0');
    if (zero != std::string_view::npos) {
        const auto line = 1 + std::count(m_text.begin(), m_text.begin() + static_cast<std::ptrdiff_t>(zero), '\n');
        fail(static_cast<std::size_t>(line), "holds a zero byte: the file is binary, only text drawings can be read.");
    }
    if (m_text.starts_with("\xEF\xBB\xBF"))
        m_position = 3;
    if (!m_filter)
        m_groups.groups.reserve(m_text.size() / 16);
    bool isKept = true;
    std::size_t nextReport = 0;
    while (true) {
        if (m_position >= nextReport) {
            if (!progress(static_cast<double>(m_position) / static_cast<double>(m_text.size()))) {
                m_groups.cancelled = true;
                return;
            }
            nextReport = m_position + m_text.size() / 50 + 1;
        }
        if (atEnd())
            failCutOff();
        const std::string_view codeLine = trimmed(nextLine());
        int code = 0;
        const auto [end, problem] = std::from_chars(codeLine.data(), codeLine.data() + codeLine.size(), code);
        if (problem != std::errc() || end != codeLine.data() + codeLine.size() || !isBetween(code, -5, 1071)) {
            if (atEnd() && m_line > 1)
                failCutOff();
            fail(m_line, holds(codeLine) + " where a group code is expected" +
                             (m_line == 1 ? ": this is not a DXF drawing." : "."));
        }
        if (atEnd())
            failCutOff();
        const std::string_view line = nextLine();
        const bool isText = code == 1 || code == 3;
        const std::string_view value = isText ? withoutReturn(line) : trimmed(line);
        checkGroup(code, value);
        if (code == 0 && m_filter)
            isKept = m_filter(m_section, value);
        if (isKept)
            m_groups.groups.push_back({code, value});
        if (code == 0 && value == "EOF")
            return;
    }
}

void GroupChecker::checkGroup(int code, std::string_view value)
{
    if (code == 999)
        return;
    if (m_sectionUnnamed) {
        if (code != 2)
            fail(m_line - 1, "should give the name of a section.");
        m_section = value;
        m_sectionUnnamed = false;
    } else if (code == 0) {
        checkStructure(value);
    } else if (!m_started) {
        fail(m_line, holds(value) + " before the first section: this is not a DXF drawing.");
    } else if (isRealCode(code) || isIntegerCode(code)) {
        checkNumber(code, value);
    }
}

void GroupChecker::checkStructure(std::string_view value)
{
    if (value == "SECTION") {
        if (m_inSection)
            fail(m_line, "starts a section inside section " + quoted(m_section) + ".");
        m_inSection = m_sectionUnnamed = m_started = true;
    } else if (!m_started) {
        fail(m_line, holds(value) + " before the first section: this is not a DXF drawing.");
    } else if (value == "ENDSEC") {
        if (!m_inSection)
            fail(m_line, "ends a section where none is open.");
        m_inSection = false;
    } else if (value == "EOF") {
        if (m_inSection)
            fail(m_line, "ends the drawing inside section " + quoted(m_section) + ".");
    } else if (!m_inSection) {
        if (atEnd())
            failCutOff();
        fail(m_line, holds(value) + " outside of any section.");
    }
}

void GroupChecker::checkNumber(int code, std::string_view value) const
{
    std::string_view digits = value;
    if (digits.starts_with('+'))
        digits.remove_prefix(1);
    double number = 0.0;
    const auto [end, problem] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool isNumber = problem != std::errc::invalid_argument && end == digits.data() + digits.size();
    if (!isNumber) {
        if (atEnd())
            failCutOff();
        fail(m_line, holds(value) + " where a number is expected.");
    }
    const bool isTooSmall = problem == std::errc::result_out_of_range && digits.find_first_of("eE") != digits.npos &&
                            digits[digits.find_first_of("eE") + 1] == '-';
    if (!isTooSmall && (problem != std::errc() || !std::isfinite(number)))
        fail(m_line, holds(value) + ", which is not a finite number.");
    // Elsewhere a number like 1e20 stands for "no extents yet".
    const bool isGeometry = m_section == "ENTITIES" || m_section == "BLOCKS";
    if (isGeometry && isRealCode(code) && std::abs(number) > largestCoordinate)
        fail(m_line, holds(value) + ", which is too large for a drawing.");
}

void GroupChecker::fail(std::size_t line, const std::string& problem) const
{
    throw DxfError("line " + std::to_string(line) + " " + problem);
}

void GroupChecker::failCutOff() const
{
    const std::string place =
        m_inSection ? " inside section " + quoted(m_section) : std::string(" without its end mark");
    throw DxfError("it ends at line " + std::to_string(m_line) + place + ", so a part of it is missing.");
}

std::string GroupChecker::quoted(std::string_view value) const
{
    constexpr std::size_t longest = 40;
    std::wstring text = decodeDxfText(value.substr(0, longest), m_groups.isUtf8);
    for (wchar_t& character : text)
        if (character < L' ')
            character = L'?';
    return "\"" + OdString(text).utf8() + (value.size() > longest ? "...\"" : "\"");
}

std::string GroupChecker::holds(std::string_view value) const
{
    return value.empty() ? std::string("is empty") : "holds " + quoted(value);
}

} // namespace

std::string_view valueOf(std::span<const DxfGroup> object, int code)
{
    for (const DxfGroup& group : object.subspan(1))
        if (group.code == code)
            return group.value;
    return {};
}

double numberOf(std::string_view value)
{
    if (value.starts_with('+'))
        value.remove_prefix(1);
    double result = 0.0;
    std::from_chars(value.data(), value.data() + value.size(), result);
    return result;
}

std::filesystem::path pathOf(const OdString& fileName)
{
    const std::string name = fileName.utf8();
    return std::u8string(name.begin(), name.end());
}

void loadDxfGroups(const std::filesystem::path& file, const std::function<bool(double share)>& progress,
                   DxfGroups& result, const DxfObjectFilter& filter)
{
    result.text = readFile(file);
    result.isUtf8 = isValidUtf8(result.text);
    GroupChecker(result, filter).check(progress);
}

} // namespace workbench
