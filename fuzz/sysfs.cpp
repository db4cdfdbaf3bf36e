// The number and text readers under every reader: SysFs::readLong and
// readLine over a file holding the input, parseUnsigned over the input, and
// the name helpers. The numbers are checked against the standard library's
// own parser.

#include "FuzzTree.h"

#include "sampling/SysFs.h"

#include <charconv>
#include <optional>

namespace {

bool blank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

// What parseUnsigned must answer: digits after leading blanks, within 64
// bits.
std::optional<quint64> expectedUnsigned(std::string_view text)
{
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    if (text.empty())
        return std::nullopt;
    for (const char c : text)
        if (c < '0' || c > '9')
            return std::nullopt;
    quint64 value = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (ec != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

// What readLong must answer: one decimal number between blanks, a sign
// allowed, within the signed 64-bit range; nothing for a file of 64 bytes
// or more.
std::optional<qint64> expectedLong(std::string_view text)
{
    if (text.empty() || text.size() >= 64)
        return std::nullopt;
    while (!text.empty() && blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && blank(text.back()))
        text.remove_suffix(1);
    bool negative = false;
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
        negative = text.front() == '-';
        text.remove_prefix(1);
    }
    if (text.empty() || blank(text.front()))
        return std::nullopt;
    const auto magnitude = expectedUnsigned(text);
    if (!magnitude)
        return std::nullopt;
    constexpr quint64 top = quint64(1) << 63;
    if (negative)
        return *magnitude <= top ? std::optional<qint64>(qint64(0 - *magnitude)) : std::nullopt;
    return *magnitude < top ? std::optional<qint64>(qint64(*magnitude)) : std::nullopt;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    fuzz::Tree tree(nullptr, 0);
    const QString file = tree.write("value", text);

    FUZZ_CHECK(SysFs::readLong(file) == expectedLong(text));
    FUZZ_CHECK(SysFs::parseUnsigned(text.data(), text.data() + text.size()) == expectedUnsigned(text));

    if (const std::optional<QString> line = SysFs::readLine(file)) {
        FUZZ_CHECK(fuzz::printable(*line));
        FUZZ_CHECK(*line == line->trimmed());
    }
    if (const std::optional<QString> raw = SysFs::readLine(file, false))
        FUZZ_CHECK(!raw->contains(u'\n'));

    const QString name = QString::fromUtf8(text.data(), qsizetype(text.size()));
    const QString clean = SysFs::printable(name);
    FUZZ_CHECK(fuzz::printable(clean) && SysFs::printable(clean) == clean);

    const int index = SysFs::indexedName(name, QLatin1StringView("temp"), QLatin1StringView("_input"));
    FUZZ_CHECK(index >= -1 && index <= 999999);
    const QString a = name.left(name.size() / 2), b = name.mid(name.size() / 2);
    FUZZ_CHECK(!SysFs::naturalLess(a, a));
    FUZZ_CHECK(!(SysFs::naturalLess(a, b) && SysFs::naturalLess(b, a)));
    return 0;
}
