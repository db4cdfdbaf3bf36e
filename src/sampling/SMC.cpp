#include "sampling/SMC.h"

#include "sampling/Plausible.h"
#include "sampling/SysFs.h"

using namespace Qt::StringLiterals;

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace {

const QLatin1StringView driverDir("/devices/platform/applesmc.768");

// Type names as the files give them may lack the trailing blank ("ui8")
// or carry a NUL where a blank belongs; both name the same type.
QString normalizedType(QString type)
{
    type.remove(QChar(0));
    while (type.endsWith(u' '))
        type.chop(1);
    return type;
}

uint32_t typeCode(const QString &name)
{
    return SMC::fourCharCode(name.leftJustified(4, u' ', true));
}

QByteArray floatBytes(float value)
{
    const uint32_t bits = std::bit_cast<uint32_t>(value);
    QByteArray out(4, '\0');
    for (int i = 0; i < 4; ++i)
        out[i] = char((bits >> (8 * i)) & 0xff);
    return out;
}

} // namespace

// ---- the request/reply record ----------------------------------------------

std::array<uint8_t, SMCParamStruct::size> SMCParamStruct::toBytes() const
{
    std::array<uint8_t, size> raw{};
    auto put32 = [&raw](int at, uint32_t v) {
        for (int i = 0; i < 4; ++i)
            raw[at + i] = uint8_t(v >> (8 * i));
    };
    put32(0, key);
    std::memcpy(raw.data() + 4, reserved0, sizeof reserved0);
    put32(28, dataSize);
    put32(32, dataType);
    raw[36] = reserved1;
    raw[37] = result;
    raw[38] = reserved2;
    raw[39] = command;
    std::memcpy(raw.data() + 40, reserved3, sizeof reserved3);
    std::memcpy(raw.data() + 44, bytes, sizeof bytes);
    return raw;
}

SMCParamStruct SMCParamStruct::fromBytes(const std::array<uint8_t, size> &raw)
{
    auto get32 = [&raw](int at) {
        uint32_t v = 0;
        for (int i = 3; i >= 0; --i)
            v = (v << 8) | raw[at + i];
        return v;
    };
    SMCParamStruct s;
    s.key = get32(0);
    std::memcpy(s.reserved0, raw.data() + 4, sizeof s.reserved0);
    s.dataSize = get32(28);
    s.dataType = get32(32);
    s.reserved1 = raw[36];
    s.result = raw[37];
    s.reserved2 = raw[38];
    s.command = raw[39];
    std::memcpy(s.reserved3, raw.data() + 40, sizeof s.reserved3);
    std::memcpy(s.bytes, raw.data() + 44, sizeof s.bytes);
    return s;
}

// ---- pure helpers -----------------------------------------------------------

uint32_t SMC::fourCharCode(const QString &key)
{
    const QByteArray utf8 = key.toUtf8().left(4);
    uint32_t code = 0;
    for (char c : utf8)
        code = (code << 8) | uint8_t(c);
    return code;
}

QString SMC::typeString(uint32_t code)
{
    QString out;
    for (int shift = 24; shift >= 0; shift -= 8) {
        const uint8_t c = uint8_t(code >> shift);
        if (c > 0x7f)
            return {};
        out.append(QChar(c));
    }
    return out;
}

std::optional<double> SMC::decode(const QString &type, const QByteArray &bytes)
{
    const auto b = [&bytes](int i) { return uint8_t(bytes[i]); };
    const qsizetype n = bytes.size();
    const auto littleFloat = [&]() {
        const uint32_t bits = uint32_t(b(0)) | uint32_t(b(1)) << 8 | uint32_t(b(2)) << 16 | uint32_t(b(3)) << 24;
        return double(std::bit_cast<float>(bits));
    };
    const QString t = normalizedType(type);

    if (t == "flt"_L1) {
        if (n < 4)
            return std::nullopt;
        const double f = littleFloat();
        if (!std::isfinite(f)) // NaN and infinities are no reading
            return std::nullopt;
        return f;
    }
    if (t == "fpe2"_L1) {
        if (n < 2)
            return std::nullopt;
        return double((uint32_t(b(0)) << 8 | b(1)) >> 2);
    }
    if (t == "sp78"_L1) {
        if (n < 2)
            return std::nullopt;
        return double(int16_t(uint16_t(b(0) << 8 | b(1)))) / 256.0;
    }
    if (t == "ui8"_L1) {
        if (n < 1)
            return std::nullopt;
        return double(b(0));
    }
    if (t == "ui16"_L1) {
        if (n < 2)
            return std::nullopt;
        return double(uint32_t(b(0)) << 8 | b(1));
    }
    if (t == "ui32"_L1) {
        if (n < 4)
            return std::nullopt;
        return double(uint32_t(b(0)) << 24 | uint32_t(b(1)) << 16 | uint32_t(b(2)) << 8 | b(3));
    }
    // Any other type: a plausible little-endian float, else the first byte.
    if (n < 1)
        return std::nullopt;
    if (n >= 4) {
        const double f = littleFloat();
        if (std::isfinite(f) && f >= 0 && f < 1000000.0)
            return f;
    }
    return double(b(0));
}

// ---- where the driver's files answer from -----------------------------------

class SMC::KeySource {
public:
    struct Found {
        uint32_t type = 0;
        uint32_t size = 0;
        int index = -1;
    };
    virtual ~KeySource() = default;
    virtual bool isEmpty() const = 0;
    virtual std::optional<Found> find(uint32_t key) = 0;
    virtual std::optional<QByteArray> read(int index, uint32_t key) = 0;
};

namespace {

// The driver's key table, sorted by key code as the controller keeps it.
class IndexedTable : public SMC::KeySource {
public:
    struct Entry {
        QString name;
        QString type;
        QByteArray data;
    };

    bool isEmpty() const override { return m_count <= 0; }

    std::optional<Found> find(uint32_t key) override
    {
        int lo = 0, hi = m_count - 1;
        while (lo <= hi) {
            const int mid = lo + (hi - lo) / 2;
            const std::optional<QString> name = nameAt(mid);
            if (!name)
                break;
            const uint32_t code = SMC::fourCharCode(*name);
            if (code == key)
                return found(mid, key);
            if (code < key)
                lo = mid + 1;
            else
                hi = mid - 1;
        }
        return std::nullopt;
    }

    std::optional<QByteArray> read(int index, uint32_t key) override
    {
        const std::optional<Entry> e = entryAt(index);
        if (!e || SMC::fourCharCode(e->name) != key)
            return std::nullopt;
        return e->data;
    }

protected:
    virtual std::optional<QString> nameAt(int index) = 0;
    virtual std::optional<Entry> entryAt(int index) = 0;

    std::optional<Found> found(int index, uint32_t key)
    {
        const std::optional<Entry> e = entryAt(index);
        if (!e || SMC::fourCharCode(e->name) != key || e->data.isEmpty())
            return std::nullopt;
        return Found{typeCode(e->type), uint32_t(e->data.size()), index};
    }

    int m_count = 0;
};

// The live driver: select an index by writing it, then read the entry back.
class LiveTable : public IndexedTable {
public:
    explicit LiveTable(const QString &dir)
        : m_dir(dir)
    {
        if (SysFs::isWritable(dir + "/key_at_index"_L1))
            m_count = int(std::clamp<qint64>(SysFs::readLong(dir + "/key_count"_L1).value_or(0), 0, 65535));
    }

protected:
    bool select(int index)
    {
        return SysFs::writeText(m_dir + "/key_at_index"_L1, QByteArray::number(index));
    }

    std::optional<QString> nameAt(int index) override
    {
        if (!select(index))
            return std::nullopt;
        return SysFs::readLine(m_dir + "/key_at_index_name"_L1, false);
    }

    std::optional<Entry> entryAt(int index) override
    {
        if (!select(index))
            return std::nullopt;
        auto name = SysFs::readLine(m_dir + "/key_at_index_name"_L1, false);
        auto type = SysFs::readLine(m_dir + "/key_at_index_type"_L1, false);
        auto data = SysFs::readFile(m_dir + "/key_at_index_data"_L1, 32);
        // Another process may have moved the index in between.
        auto again = SysFs::readLine(m_dir + "/key_at_index_name"_L1, false);
        if (!name || !type || !data || again != name)
            return std::nullopt;
        return Entry{*name, *type, *data};
    }

private:
    QString m_dir;
};

// A captured copy of the table: keys/<index>/{name,type,data}. A capture
// may hold any subset of the indexes, in any order, so the names are read
// once, when the table is opened, and looked up by key after that.
class CapturedTable : public IndexedTable {
public:
    explicit CapturedTable(const QString &dir)
        : m_dir(dir + "/keys/"_L1)
    {
        const QStringList names = SysFs::entries(m_dir);
        for (const QString &n : names) {
            bool ok = false;
            const int i = n.toInt(&ok);
            if (!ok || i < 0 || i >= 65536 || n != QString::number(i))
                continue;
            const std::optional<QString> name = nameAt(i);
            if (!name)
                continue;
            // The first index of a key stands, as in the controller's own order.
            if (const uint32_t code = SMC::fourCharCode(*name); !m_byKey.contains(code))
                m_byKey.insert(code, i);
            m_count = std::max(m_count, i + 1);
        }
    }

    std::optional<Found> find(uint32_t key) override
    {
        const auto it = m_byKey.constFind(key);
        if (it == m_byKey.cend())
            return std::nullopt;
        return found(*it, key);
    }

protected:
    std::optional<QString> nameAt(int index) override
    {
        return SysFs::readLine(m_dir + QString::number(index) + "/name"_L1, false);
    }

    std::optional<Entry> entryAt(int index) override
    {
        const QString base = m_dir + QString::number(index);
        auto name = SysFs::readLine(base + "/name"_L1, false);
        auto type = SysFs::readLine(base + "/type"_L1, false);
        auto data = SysFs::readFile(base + "/data"_L1, 32);
        if (!name || !type || !data)
            return std::nullopt;
        return Entry{*name, *type, *data};
    }

private:
    QString m_dir;
    QHash<uint32_t, int> m_byKey;
};

// The hwmon attributes of the driver, which anyone may read.
class Attributes : public SMC::KeySource {
public:
    explicit Attributes(const QString &dir)
    {
        int fanCount = 0;
        for (const QString &name : SysFs::entries(dir)) {
            if (const int t = SysFs::indexedName(name, QLatin1StringView("temp"), QLatin1StringView("_label")); t >= 0) {
                const std::optional<QString> label = SysFs::readLine(dir + u'/' + name);
                if (label && !label->isEmpty())
                    add(*label, dir + QStringLiteral("/temp%1_input").arg(t), 0.001);
            } else if (const int f = SysFs::indexedName(name, QLatin1StringView("fan"), QLatin1StringView("_input"));
                       f >= 1 && f <= SMC::maxFans) {
                fanCount = std::max(fanCount, f);
                const QString prefix = dir + QStringLiteral("/fan%1_").arg(f);
                const QString key = QStringLiteral("F%1").arg(f - 1);
                add(key + "Ac"_L1, prefix + "input"_L1, 1.0);
                add(key + "Mn"_L1, prefix + "min"_L1, 1.0);
                add(key + "Mx"_L1, prefix + "max"_L1, 1.0);
            }
        }
        m_fanCount = fanCount;
    }

    bool isEmpty() const override { return m_items.isEmpty(); }

    std::optional<Found> find(uint32_t key) override
    {
        if (key == SMC::fourCharCode(QStringLiteral("FNum")) && m_fanCount > 0)
            return Found{typeCode(QStringLiteral("ui8")), 1, -1};
        for (int i = 0; i < m_items.size(); ++i) {
            if (m_items[i].key == key && SysFs::exists(m_items[i].path))
                return Found{typeCode(QStringLiteral("flt")), 4, i};
        }
        return std::nullopt;
    }

    std::optional<QByteArray> read(int index, uint32_t) override
    {
        if (index < 0)
            return QByteArray(1, char(std::min(m_fanCount, 255)));
        if (index >= m_items.size())
            return std::nullopt;
        const std::optional<qint64> raw = SysFs::readLong(m_items[index].path);
        if (!raw)
            return std::nullopt;
        return floatBytes(float(double(*raw) * m_items[index].scale));
    }

private:
    struct Item {
        uint32_t key;
        QString path;
        double scale;
    };

    void add(const QString &key, const QString &path, double scale)
    {
        m_items.append({SMC::fourCharCode(key), path, scale});
    }

    QList<Item> m_items;
    int m_fanCount = 0;
};

} // namespace

// ---- the client -------------------------------------------------------------

SMC::SMC(SystemRoots roots)
    : m_roots(std::move(roots))
    , m_dir(m_roots.sys + driverDir)
{
    open();
}

SMC::~SMC() = default;

SMC &SMC::shared()
{
    static SMC instance;
    return instance;
}

void SMC::open()
{
    if (!SysFs::exists(m_dir + "/key_count"_L1) && !SysFs::exists(m_dir + "/name"_L1))
        return;
    // Only the real driver is ever written to.
    if (m_roots.live && m_roots.sys == "/sys"_L1)
        m_sources.push_back(std::make_unique<LiveTable>(m_dir));
    else
        m_sources.push_back(std::make_unique<CapturedTable>(m_dir));
    m_sources.push_back(std::make_unique<Attributes>(m_dir));
    std::erase_if(m_sources, [](const auto &s) { return s->isEmpty(); });
    m_isOpen = !m_sources.empty();
}

std::optional<SMC::KeyInfo> SMC::lookUp(uint32_t key)
{
    if (const auto it = m_infoCache.constFind(key); it != m_infoCache.cend())
        return *it;
    std::optional<KeyInfo> info;
    for (const auto &source : m_sources) {
        if (const auto f = source->find(key)) {
            info = KeyInfo{f->type, f->size, source.get(), f->index};
            break;
        }
    }
    // The table does not change while the machine runs, so misses are kept too.
    m_infoCache.insert(key, info);
    return info;
}

std::optional<SMCParamStruct> SMC::callDriver(const SMCParamStruct &input)
{
    if (!m_isOpen)
        return std::nullopt;
    SMCParamStruct reply;
    reply.key = input.key;
    reply.command = input.command;
    const std::optional<KeyInfo> info = lookUp(input.key);
    if (!info) {
        reply.result = keyNotFound;
    } else if (input.command == SMCParamStruct::readKeyInfo) {
        reply.dataSize = info->size;
        reply.dataType = info->type;
    } else if (input.command == SMCParamStruct::readBytes) {
        const std::optional<QByteArray> data = info->source->read(info->index, input.key);
        if (!data) {
            reply.result = keyNotFound;
        } else {
            reply.dataSize = input.dataSize;
            const size_t n = std::min<size_t>({size_t(data->size()), input.dataSize, sizeof reply.bytes});
            std::memcpy(reply.bytes, data->constData(), n);
        }
    } else {
        reply.result = keyNotFound;
    }
    if (reply.result != 0)
        return std::nullopt;
    return reply;
}

std::optional<double> SMC::readValue(const QString &key)
{
    SMCParamStruct request;
    request.key = fourCharCode(key);
    request.command = SMCParamStruct::readKeyInfo;
    const std::optional<SMCParamStruct> info = callDriver(request);
    if (!info || info->dataSize == 0)
        return std::nullopt;
    const uint32_t size = info->dataSize;
    const uint32_t type = info->dataType;

    SMCParamStruct read;
    read.key = request.key;
    read.dataSize = size;
    read.command = SMCParamStruct::readBytes;
    const std::optional<SMCParamStruct> value = callDriver(read);
    if (!value)
        return std::nullopt;
    const QByteArray b(reinterpret_cast<const char *>(value->bytes), std::min<uint32_t>(size, 32));
    return decode(typeString(type), b);
}

QList<FanInfo> SMC::fans()
{
    QList<FanInfo> out;
    if (!m_isOpen)
        return out;
    const std::optional<double> n = readValue(QStringLiteral("FNum"));
    if (!n || !(*n > 0))
        return out;
    // The count bounds the fans; a fan the controller has no key of at all
    // is not there, whatever the count says.
    const int count = int(std::min(std::trunc(*n), double(maxFans)));
    const auto speed = [this](const QString &key) {
        return Plausible::fanRpmOrZero(readValue(key).value_or(0.0));
    };
    for (int i = 0; i < count; ++i) {
        const QString prefix = u'F' + QString::number(i);
        const QString keys[] = {prefix + "Ac"_L1, prefix + "Mn"_L1, prefix + "Mx"_L1};
        if (std::none_of(std::begin(keys), std::end(keys), [this](const QString &k) { return lookUp(fourCharCode(k)); }))
            continue;
        FanInfo fan;
        fan.index = i;
        fan.current = speed(keys[0]);
        fan.min = speed(keys[1]);
        fan.max = speed(keys[2]);
        out.append(fan);
    }
    return out;
}
