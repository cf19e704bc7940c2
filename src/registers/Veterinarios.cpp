#include "registers/Veterinarios.h"

#include "frame/Entrada.h"
#include "frame/ficha/Aspecto.h"
#include "registers/Listas.h"
#include "registers/datos/Direccion.h"
#include "store/Recordset.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace pastorix {

namespace {

constexpr CampoFicha kCampos[] = {
    {0, "Id_Veterinario", "Códig&o", ClaseCampo::Codigo, 0, 0, 0},
    {1, "DNI", "&D.N.I.", ClaseCampo::Texto, 9, 0, 1},
    {2, "NombreVet", "&Nombre", ClaseCampo::Texto, 50, 1, 0},
    {17, "ApellidosVet", "A&pellidos", ClaseCampo::Texto, 50, 1, 1},
    {18, "Concejo", "Conce&jo", ClaseCampo::Texto, 30, 2, 0},
    {12, "FechaAlta", "Fec&ha de Alta", ClaseCampo::Fecha, 10, 2, 1, 1, "", 0, SiNoVale::Conserva},
    {4, nullptr, "D&irección", ClaseCampo::Texto, 50, 3, 0, 2},
    {5, nullptr, "", ClaseCampo::Texto, 50, 4, 0, 2, "Complemento de la dirección"},
    {6, nullptr, "C. Po&stal", ClaseCampo::Texto, 5, 5, 0},
    {7, nullptr, "&Localidad", ClaseCampo::Texto, 30, 5, 1},
    {8, nullptr, "Pro&vincia", ClaseCampo::Texto, 30, 6, 0},
    {9, nullptr, "&Tlf. Movil", ClaseCampo::Texto, 20, 6, 1},
    {10, nullptr, "Telé&fono", ClaseCampo::Texto, 20, 7, 0},
    {11, nullptr, "E-mail", ClaseCampo::Texto, 25, 7, 1},
    {13, nullptr, "Fa&x", ClaseCampo::Texto, 20, 8, 0},
    {14, "Usuario", "&Usuario", ClaseCampo::Texto, 25, 10, 0},
};

constexpr CampoDireccion kDireccion[] = {{"Direccion", 4},  {"Complemento", 5}, {"Codigo_Postal", 6},
                                         {"Localidad", 7},  {"Provincia", 8},   {"TelefonoM", 9},
                                         {"TelefonoP", 10}, {"Email", 11},      {"FAX", 13}};

constexpr DefinicionFicha kDefinicion{"Veterinarios",
                                      {"CT_Estandar", "T_Veterinarios", kCampos},
                                      "Id_Veterinario",
                                      "Debe incluir como mínimo el Código y el Nombre",
                                      2,
                                      12};

} // namespace

Veterinarios::Veterinarios(Sesion& sesion, QWidget* padre)
    : Ficha(sesion, kDefinicion, padre) {
    setObjectName(QStringLiteral("Veterinarios"));
    Cuerpo()->addWidget(CrearRejilla(this));
    Rejilla()->addWidget(Titular(QStringLiteral("Control de Distribución"), this), 9, 0, 1, 4);
    PonerIconoBusDato(0, 0, "Seleccionar veterinario");
    Cuerpo()->addStretch();
    TerminarConstruccion(&Campo(14));
}

// Anonymous veterinarians keep two at most. The test is for exactly two: a database that holds more already is let through.
bool Veterinarios::PermiteAñadir() {
    if (!LaSesion().UsuarioSesion.empty())
        return true;
    const Recordset rs(Base(), "SELECT Id_Veterinario FROM T_Veterinarios", Cursor::Keyset,
                       Bloqueo::SoloLectura);
    if (rs.Contar() != 2)
        return true;
    return Rechazar(
        QStringLiteral("Recuerde que en Modo: VETERINARIO, sólo puede disponer de 2 Veterinarios"),
        &Campo(0));
}

bool Veterinarios::Comprobar() {
    if (Texto(14).isEmpty())
        return Rechazar(QStringLiteral("Debe Indicar el Nombre Usuario para Iniciar la Sesión"), &Campo(14));
    if (!UsuarioLibre(Base(), TextoStd(14)))
        return Rechazar(QStringLiteral("El Usuario: ") + Texto(14) +
                            QStringLiteral(" y aestá siendo utilizado, cambielo por otro."),
                        &Campo(14));
    return true;
}

void Veterinarios::EscribirPropios(Recordset& rs) {
    m_idDireccion = NumerarDireccion(Base(), rs, [this](int i) { return TextoStd(i); });
}

void Veterinarios::EscribirHijos(double codigo) {
    EscribirDireccion(Base(), m_idDireccion, codigo, kDireccion, [this](int i) { return TextoStd(i); });
}

void Veterinarios::MostrarPropios(Recordset& rs) {
    LeerDireccion(Base(), rs["Id_Direccion"].Numero(), Clave(), kDireccion,
                  [this](int i, const std::string& texto) { Poner(i, texto); });
}

void Veterinarios::BuscarDato(int) {
    if (const auto clave = ElegirVeterinario(LaSesion(), this); clave && PermiteCargarOtro())
        CargarFicha(*clave);
}

} // namespace pastorix
