#include "access/BaseAccess.h"

#include <cstddef>
#include <cstdint>
#include <span>

using namespace pastorix::access;

// Any bytes at all are read to the last row or refused with ErrorAccess; nothing else may come out.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
    const std::span<const std::uint8_t> bytes(datos, largo);
    BaseAccess::LoParece(bytes);
    try {
        const BaseAccess base = BaseAccess::DeBytes(Bytes(bytes.begin(), bytes.end()));
        for (const Tabla& tabla : base.Tablas()) {
            try {
                base.Recorrer(tabla, [](std::span<const Celda>) {});
            } catch (const ErrorAccess&) { // the other tables may still be read
            }
        }
    } catch (const ErrorAccess&) {
    }
    return 0;
}
