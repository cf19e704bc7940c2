#include "access/Cabecera.h"

#include "access/BaseAccess.h"
#include "access/Rc4.h"
#include "access/Texto.h"

#include <array>
#include <cmath>
#include <cstring>
#include <string_view>

namespace pastorix::access {

namespace {

constexpr std::size_t sitioFirma = 4, sitioVersion = 0x14, sitioMascara = 0x18;
constexpr std::size_t sitioPaginaCodigos = 0x3C, sitioLlave = 0x3E, sitioClave = 0x42, sitioFecha = 0x72;
constexpr std::array<std::uint8_t, 4> llaveMascara{0xC7, 0xDA, 0x39, 0x6B};

bool FirmaEs(Vista principio, std::string_view firma) {
    // The zero byte behind the name belongs to the signature.
    return principio.size() > sitioFirma + firma.size() &&
           std::memcmp(principio.data() + sitioFirma, firma.data(), firma.size()) == 0 &&
           principio[sitioFirma + firma.size()] == 0;
}

std::string NombreDeVersion(unsigned version) {
    switch (version) {
    case 2:
        return "Access 2007";
    case 3:
        return "Access 2010";
    case 5:
        return "Access 2016";
    case 6:
        return "Access 2019";
    default:
        return "una versión desconocida de Access (" + std::to_string(version) + ")";
    }
}

std::string ClaveJet3(const Lector& cabecera, unsigned paginaCodigos) {
    const Vista bytes = cabecera.Trozo(sitioClave, Jet3.bytesClave);
    std::size_t largo = 0;
    while (largo < bytes.size() && bytes[largo] != 0)
        ++largo;
    std::string clave;
    Textos(Jet3, paginaCodigos).Decodificar(bytes.first(largo), clave);
    return clave;
}

// The creation date is a second mask over the password.
std::string ClaveJet4(const Lector& cabecera) {
    const double fecha = cabecera.Doble(sitioFecha);
    if (!std::isfinite(fecha) || std::trunc(fecha) < -2147483648.0 || std::trunc(fecha) > 2147483647.0)
        Dañar("la fecha de creación de la cabecera no es válida");
    const auto mascara = static_cast<std::uint32_t>(static_cast<std::int32_t>(fecha));
    std::array<std::uint8_t, Jet4.bytesClave> bytes{};
    std::size_t largo = 0;
    for (; largo < bytes.size(); largo += 2) {
        for (std::size_t k = largo; k < largo + 2; ++k)
            bytes[k] = static_cast<std::uint8_t>(cabecera.U8(sitioClave + k) ^ (mascara >> (8 * (k % 4))));
        if (bytes[largo] == 0 && bytes[largo + 1] == 0)
            break;
    }
    std::string clave;
    DecodificarUtf16(Vista(bytes).first(largo), clave);
    return clave;
}

} // namespace

bool TieneFirma(Vista principio) {
    constexpr std::array<std::uint8_t, 4> comienzo{0, 1, 0, 0};
    return principio.size() >= comienzo.size() &&
           std::memcmp(principio.data(), comienzo.data(), comienzo.size()) == 0 &&
           (FirmaEs(principio, "Standard Jet DB") || FirmaEs(principio, "Standard ACE DB"));
}

const Formato& ReconocerFormato(Vista principio) {
    if (principio.empty())
        throw ErrorAccess(ErrorAccess::Clase::NoEsAccess, "El fichero está vacío.");
    if (!TieneFirma(principio) || principio.size() <= sitioVersion)
        throw ErrorAccess(ErrorAccess::Clase::NoEsAccess, "El fichero no es una base de datos de Access.");
    const unsigned version = principio[sitioVersion];
    if (version <= 1 && FirmaEs(principio, "Standard Jet DB"))
        return version == 0 ? Jet3 : Jet4;
    throw ErrorAccess(ErrorAccess::Clase::VersionNoTratada,
                      "El fichero es de " + NombreDeVersion(version) +
                          "; sólo se leen los de Access 97, 2000, 2002 y 2003 (.mdb).");
}

Cabecera LeerCabecera(Vista pagina, const Formato& formato) {
    std::vector<std::uint8_t> clara(pagina.begin(), pagina.end());
    Rc4(llaveMascara, std::span(clara).subspan(sitioMascara, formato.enmascarados));
    const Lector lector(clara, 0);
    Cabecera cabecera;
    cabecera.formato = &formato;
    cabecera.paginaCodigos = lector.U16(sitioPaginaCodigos);
    cabecera.llave = lector.U32(sitioLlave);
    cabecera.clave = formato.EsJet4() ? ClaveJet4(lector) : ClaveJet3(lector, cabecera.paginaCodigos);
    return cabecera;
}

} // namespace pastorix::access
