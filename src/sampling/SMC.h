#pragma once
// The System Management Controller of Apple hardware. On Linux it is reached
// through the applesmc driver's files under
// <sys>/devices/platform/applesmc.768; elsewhere it stays closed and every
// read is absent.
//
// Reads follow the controller's own exchange: a key-info request (command 9)
// gives the value's type and size, a read-bytes request (command 5) gives the
// raw bytes, and the bytes are decoded by type. The driver's files answer
// those requests from three places, first match wins:
//  1. its indexed key table (key_count, key_at_index, key_at_index_name,
//     key_at_index_type, key_at_index_data). Selecting an index means writing
//     key_at_index, which only root may do, so this is used on the live
//     machine only when that file is writable;
//  2. in a captured tree (SystemRoots::live false), the same table as the
//     capture recorded it, one folder per index: keys/<index>/{name,type,data},
//     data being the raw bytes. A capture cannot replay the driver's
//     write-then-read exchange, and nothing is ever written into one;
//  3. the driver's hwmon attributes, readable by anyone: temp<N>_label names
//     the key of temp<N>_input (millidegrees), fan<N>_input/_min/_max answer
//     F<N-1>Ac/Mn/Mx, and FNum is the number of fans. These come back as
//     "flt " (or "ui8 " for FNum) values.

#include "model/Records.h"
#include "sampling/SystemRoots.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>

// The 76-byte request and reply record of the controller. Multi-byte integers
// are in little-endian order in the byte form.
struct SMCParamStruct {
    static constexpr int size = 76;
    static constexpr uint8_t readKeyInfo = 9;
    static constexpr uint8_t readBytes = 5;

    uint32_t key = 0;          // offset 0: four-character code of the key
    uint8_t reserved0[24] = {}; // offset 4
    uint32_t dataSize = 0;     // offset 28: value length (info reply) or bytes wanted (read request)
    uint32_t dataType = 0;     // offset 32: four-character code of the value's type
    uint8_t reserved1 = 0;     // offset 36
    uint8_t result = 0;        // offset 37: 0 is success
    uint8_t reserved2 = 0;     // offset 38
    uint8_t command = 0;       // offset 39: readKeyInfo or readBytes
    uint8_t reserved3[4] = {}; // offset 40
    uint8_t bytes[32] = {};    // offset 44: the value's raw bytes in a read reply

    std::array<uint8_t, size> toBytes() const;
    static SMCParamStruct fromBytes(const std::array<uint8_t, size> &raw);
};

class SMC {
public:
    explicit SMC(SystemRoots roots = {});
    ~SMC();

    // The process-wide instance over the live /sys.
    static SMC &shared();

    bool isOpen() const { return m_isOpen; }
    std::optional<double> readValue(const QString &key);
    // The fans below the controller's count (FNum) that it has keys for.
    // Speeds that are unreadable or beyond any real fan are 0.
    QList<FanInfo> fans();

    // Code of a key or type: the first four UTF-8 bytes, first in the most
    // significant position; shorter keys give smaller codes ("ab" is 0x6162).
    static uint32_t fourCharCode(const QString &key);
    // The four bytes of `code`, most significant first, as ASCII; empty when
    // any is not ASCII.
    static QString typeString(uint32_t code);
    // A value's raw bytes decoded by its type name; absent when a known type
    // has too few bytes.
    static std::optional<double> decode(const QString &type, const QByteArray &bytes);

    // Result byte of a reply for a key the controller does not have.
    static constexpr uint8_t keyNotFound = 0x84;

    // Fan keys carry the fan's number in one character (F0Ac … F9Ac), so a
    // controller describes at most ten fans.
    static constexpr int maxFans = 10;

    class KeySource;

private:
    struct KeyInfo {
        uint32_t type = 0;
        uint32_t size = 0;
        KeySource *source = nullptr;
        int index = -1;
    };

    void open();
    std::optional<SMCParamStruct> callDriver(const SMCParamStruct &input);
    std::optional<KeyInfo> lookUp(uint32_t key);

    SystemRoots m_roots;
    QString m_dir;
    bool m_isOpen = false;
    std::vector<std::unique_ptr<KeySource>> m_sources;
    QHash<uint32_t, std::optional<KeyInfo>> m_infoCache;
};
