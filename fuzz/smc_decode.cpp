// The SMC's value decoder and its request record: the first four bytes of
// the input name the type, the rest are the value's bytes.

#include "FuzzTree.h"

#include "sampling/SMC.h"

#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const size_t typeLength = std::min<size_t>(size, 4);
    const QString type = QString::fromLatin1(reinterpret_cast<const char *>(data), qsizetype(typeLength));
    const QByteArray bytes(reinterpret_cast<const char *>(data + typeLength), qsizetype(std::min<size_t>(size - typeLength, 32)));
    if (const std::optional<double> v = SMC::decode(type, bytes))
        FUZZ_CHECK(fuzz::finite(*v));

    const uint32_t code = SMC::fourCharCode(type);
    const QString name = SMC::typeString(code);
    FUZZ_CHECK(name.isEmpty() || SMC::fourCharCode(name) == code);

    if (size >= size_t(SMCParamStruct::size)) {
        std::array<uint8_t, SMCParamStruct::size> raw{};
        std::memcpy(raw.data(), data, raw.size());
        FUZZ_CHECK(SMCParamStruct::fromBytes(raw).toBytes() == raw);
    }
    return 0;
}
