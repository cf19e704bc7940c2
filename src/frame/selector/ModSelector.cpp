#include "frame/selector/ModSelector.h"

#include "frame/selector/SentenciasSelector.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

namespace pastorix {

namespace {

// Who makes the statement of a kind.
enum class Origen { Propio, Llamador, XSelector, NoAqui };

struct Clase {
    TipoSelector tipo;
    Origen origen;
    const char* titulo;
    const std::vector<std::string>* columnas;
    const char* destino;
    const char* clave;
    const char* respuesta;
};

const std::vector<std::string> kGanaderos{"Veterinario", "Localidad", "Apodo",
                                          "Nombre",      "Apellidos", "Cód.Gan"};
const std::vector<std::string> kVacas{"Cód.Gan",  "Apellidos", "Nombre",   "Apodo",
                                      "Cód.Vaca", "Reg.Gen.",  "Reg.San.", "Nombre Vaca",
                                      "Crotal",   "CrotalANT", "Nombre-C", "F.Baja"};
const std::vector<std::string> kSementales{"Cód.Gan",  "Apellidos",  "Nombre",   "Apodo",
                                           "Cód.Sem.", "Reg.Gen.",   "Reg.San.", "Semental",
                                           "Crotal",   "Semental-C", "F.Baja"};
const std::vector<std::string> kXSelector{"Apodo",    "Cód.Sem.", "Reg.Gen.",  "Reg.San.",
                                          "Semental", "Crotal",   "Semental-C"};
const std::vector<std::string> kMeritos{"Cód.Gan", "Nombre-C", "Reg.Genealógico", "FechaN", "Padre",  "Madre",
                                        "CalifM",  "MGPN",     "FiabPN",          "MGPD",   "FiabPD", "MGGD",
                                        "FiabGD",  "MGDifP",   "FiabDP"};
const std::vector<std::string> kVeterinarios{"Código", "Nombre", "Apellidos", "Localidad", "Usuario"};
const std::vector<std::string> kNinguna;

constexpr const char* kTituloGanaderos = " Selector de Ganaderos";
constexpr const char* kTituloVacas = " Selector de Vacas";
constexpr const char* kTituloSementales = " Selector de Sementales";
constexpr const char* kTituloPadres = " Selector de Sementales - Padres";

const Clase& ClaseDe(TipoSelector tipo) {
    using T = TipoSelector;
    using O = Origen;
    static const std::array<Clase, 20> clases{{
        {T::Ganaderos, O::Propio, kTituloGanaderos, &kGanaderos, "Ganaderos", "Id_Ganadero", ""},
        {T::Vacas, O::Llamador, kTituloVacas, &kVacas, "Vacas", "Id_Vaca", ""},
        {T::Veterinarios, O::NoAqui, " Selector de Veterinarios", &kNinguna, "Veterinarios", "Id_Veterinario",
         ""},
        {T::Sementales, O::Llamador, kTituloSementales, &kSementales, "Sementales", "Id_Semental", ""},
        {T::SementalesPorCodigo, O::NoAqui, kTituloSementales, &kNinguna, "Sementales", "Id_Semental", ""},
        {T::GanaderosParaVacas, O::Propio, kTituloGanaderos, &kGanaderos, "Vacas", "Id_Ganadero", ""},
        {T::GanaderosParaSementales, O::Propio, kTituloGanaderos, &kGanaderos, "Sementales", "Id_Ganadero",
         ""},
        {T::VacasTodas, O::NoAqui, kTituloVacas, &kNinguna, "Sementales", "Id_Vaca", ""},
        {T::VacasDeHistoricoPxV, O::Llamador, kTituloVacas, &kVacas, "LstHtsPxV", "Id_Vaca", ""},
        {T::PadresParaCubriciones, O::XSelector, kTituloPadres, &kXSelector, "Cubriciones", "Id_Semental",
         ""},
        {T::PadresParaSementales, O::XSelector, kTituloPadres, &kXSelector, "Sementales", "Id_Semental", ""},
        {T::Nucleos, O::NoAqui, "", &kNinguna, "", "", ""},
        {T::MadresParaSementales, O::Llamador, kTituloVacas, &kVacas, "Sementales", "Id_Vaca", "NombreC"},
        {T::PadresParaPartos, O::XSelector, kTituloPadres, &kXSelector, "Partos", "Id_Semental", ""},
        {T::PadresParaVacas, O::XSelector, kTituloPadres, &kXSelector, "Vacas", "Id_Semental", ""},
        {T::MadresParaVacas, O::Llamador, kTituloVacas, &kVacas, "Vacas", "Id_Vaca", "NombreC"},
        {T::VacasDeHistoricoEAR, O::Llamador, kTituloVacas, &kVacas, "LstHtsEAR_DR", "Id_Vaca", ""},
        {T::Meritos, O::Llamador, " Selección de Sementales...", &kMeritos, "Sementales", "Id_Semental", ""},
        {T::RelacionDeVeterinarios, O::Propio, " Relación de Veterinarios", &kVeterinarios, "", "", ""},
        {T::RelacionDeGanaderos, O::Propio, " Relación de Ganaderos", &kGanaderos, "", "", ""},
    }};
    const auto it =
        std::find_if(clases.begin(), clases.end(), [&](const Clase& c) { return c.tipo == tipo; });
    if (it == clases.end())
        throw std::logic_error("no such kind of list");
    return *it;
}

SentenciaDeLista SentenciaPropia(TipoSelector tipo) {
    if (tipo == TipoSelector::RelacionDeVeterinarios)
        return SentenciaVeterinarios(true);
    return SentenciaGanaderos(tipo == TipoSelector::RelacionDeGanaderos
                                  ? VeterinarioDeLista::SoloNombre
                                  : VeterinarioDeLista::NombreYApellidos);
}

ListaSelector ListaDe(const Clase& clase) {
    ListaSelector lista;
    lista.tipo = clase.tipo;
    lista.titulo = clase.titulo;
    lista.columnas = *clase.columnas;
    lista.destino = clase.destino;
    lista.clave = clase.clave;
    lista.respuesta = clase.respuesta;
    return lista;
}

void CopiarToros(Recordset& destino, Conexion& conexion, const std::string& limite, std::int64_t& id) {
    auto sentencia = SentenciaSementales();
    sentencia.donde += limite;
    Recordset toros(conexion, sentencia.Completa(), Cursor::Estatico, Bloqueo::SoloLectura);
    for (; !toros.Eof(); toros.Siguiente()) {
        destino.AddNew();
        destino["id"] = ++id;
        destino["Apodo"] = toros["Apodo"].Leer();
        destino["Id_Semental"] = toros["Id_Semental"].Leer();
        destino["RegGen"] = toros["RegGenealogico"].Leer();
        destino["RegSan"] = toros["RegSaneam"].Leer();
        destino["Semental"] = toros["Semental"].Leer();
        destino["Crotal"] = toros["Crotal"].Leer();
        destino["SementalC"] = toros["NombreC"].Leer();
        destino["Baja"] = toros["FechaBaja"].Nulo() ? 0 : 1;
        destino.Update();
    }
}

} // namespace

SentenciaDeLista ListaSelector::Sentencia(bool conBajas) const {
    return ocultaBajas ? SentenciaXSelector(conBajas) : sentencia;
}

bool ListaSelector::AbreFicha() const {
    return !clave.empty() && tipo <= TipoSelector::GanaderosParaSementales;
}

std::string_view ExplicacionDeTitulo(std::string_view titulo) {
    static constexpr std::pair<std::string_view, std::string_view> kPalabras[] = {
        {"Cód.Gan", "Código del ganadero"},
        {"Cód.Vaca", "Código de la vaca"},
        {"Cód.Sem.", "Código del semental"},
        {"Reg.Gen.", "Registro genealógico"},
        {"Reg.Genealógico", "Registro genealógico"},
        {"Reg.San.", "Registro de saneamiento"},
        {"CrotalANT", "Crotal anterior"},
        {"Nombre-C", "Nombre compuesto"},
        {"Semental-C", "Nombre compuesto del semental"},
        {"F.Baja", "Fecha de baja"},
        {"FechaN", "Fecha de nacimiento"},
        {"CalifM", "Calificación morfológica"},
        {"MGPN", "Mérito genético: peso al nacimiento"},
        {"FiabPN", "Fiabilidad del mérito: peso al nacimiento"},
        {"MGPD", "Mérito genético: peso al destete"},
        {"FiabPD", "Fiabilidad del mérito: peso al destete"},
        {"MGGD", "Mérito genético: ganancia diaria"},
        {"FiabGD", "Fiabilidad del mérito: ganancia diaria"},
        {"MGDifP", "Mérito genético: dificultad de parto"},
        {"FiabDP", "Fiabilidad del mérito: dificultad de parto"},
    };
    const auto* it = std::find_if(std::begin(kPalabras), std::end(kPalabras),
                                  [&](const auto& par) { return par.first == titulo; });
    return it == std::end(kPalabras) ? std::string_view() : it->second;
}

std::vector<double> ClavesDeBaja(Conexion& conexion, std::string_view clave) {
    const char* sql =
        clave == "Id_Vaca"       ? "SELECT Id_Vaca FROM T_Vacas WHERE FechaDesecho Is Not Null"
        : clave == "Id_Semental" ? "SELECT Id_Semental FROM T_Sementales WHERE FechaBaja Is Not Null"
        : clave == "Id_Ganadero" ? "SELECT Id_Ganadero FROM T_Ganaderos WHERE FechaBaja Is Not Null"
                                 : nullptr;
    std::vector<double> claves;
    if (!sql)
        return claves;
    for (Recordset rs(conexion, sql, Cursor::Estatico, Bloqueo::SoloLectura); !rs.Eof(); rs.Siguiente())
        claves.push_back(rs[0].Numero());
    std::sort(claves.begin(), claves.end());
    return claves;
}

void RehacerXSelector(Conexion& conexion, std::string_view ganadero) {
    EnGrupo(conexion, [&] {
        conexion.Execute("DELETE FROM X_Selector");
        Recordset destino(conexion, "SELECT * FROM X_Selector WHERE id = 0");
        std::int64_t id = 0;
        if (double codigo = 0; NumeroDeTexto(ganadero, codigo))
            CopiarToros(destino, conexion, " AND T_Sementales.Id_Ganadero = " + NumeroSql(codigo), id);
        CopiarToros(destino, conexion, " AND T_Ganaderos.Apodo = 'Otros Toros'", id);
        CopiarToros(destino, conexion, " AND T_Sementales.Id_Ganadero = 1", id);
    });
}

ListaSelector PrepararSelector(Conexion& conexion, TipoSelector tipo, std::string_view texto) {
    const auto& clase = ClaseDe(tipo);
    auto lista = ListaDe(clase);
    switch (clase.origen) {
    case Origen::Propio:
        lista.sentencia = SentenciaPropia(tipo);
        break;
    case Origen::Llamador:
        lista.sentencia = PartirSentencia(texto);
        break;
    case Origen::XSelector:
        RehacerXSelector(conexion, texto);
        lista.ocultaBajas = true;
        lista.sentencia = SentenciaXSelector();
        break;
    case Origen::NoAqui:
        throw std::logic_error("this kind of list is made ready by its caller");
    }
    return lista;
}

ListaSelector ListaDelLlamador(TipoSelector tipo, std::string_view sentencia, std::string titulo,
                               std::vector<std::string> columnas, std::string clave) {
    auto lista = ListaDe(ClaseDe(tipo));
    lista.sentencia = PartirSentencia(sentencia);
    lista.titulo = std::move(titulo);
    lista.columnas = std::move(columnas);
    if (!clave.empty())
        lista.clave = std::move(clave);
    return lista;
}

} // namespace pastorix
