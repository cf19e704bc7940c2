#include "DatosDeEjemplo.h"

#include <array>

using namespace pastorix;

namespace ejemplo {

TablaDatos Tabla(const std::string& nombre, std::vector<std::string> columnas, std::vector<Fila> filas) {
    for (Fila& fila : filas)
        fila.resize(columnas.size());
    return {nombre, std::move(columnas), std::move(filas)};
}

namespace {

struct Tablas {
    TablaDatos temp = Tabla("X_Temp", {"C1", "C2", "C3", "C4"});
    TablaDatos censo = Tabla("X_Temp1", {"Id_Ganadero", "C1", "C2", "T1", "NCC", "NCD", "N1", "N2"});
    TablaDatos meses = Tabla("X_Temp2", {"Id_Ganadero", "Mes", "N1", "N2", "C1"});
    TablaDatos estaciones = Tabla("X_TempGraph", {"Id_Ganadero", "Periodo", "N1", "N2"});
    TablaDatos cularidad = Tabla("X_Tmp3", {"Id_Ganadero", "N1", "N2", "N3"});
    TablaDatos destete =
        Tabla("X_Tmp4", {"Id_Ganadero", "NTN",     "NTV",       "EdadN",      "EdadV",     "PesoN",
                         "PesoV",       "GDN",     "GDV",       "NacidosIns", "Normales",  "Aculonados",
                         "Culones",     "TotalCC", "PN",        "PA",         "PC",        "CEBOSMP",
                         "CEBOSHP",     "CEBOSMC", "P_CEBOSHP", "P_CEBOSMP",  "CEBOSTOTAL"});
    TablaDatos intervalos = Tabla("X_Tmp6", {"Id_Ganadero", "Texto", "N", "N1", "N2", "N3", "N5", "N6"});
    TablaDatos sinConfirmar = Tabla("SinConfirmar", {"Id_Ganadero", "Texto", "N"});
    TablaDatos veterinario =
        Tabla("Veterinario", {"Id_Ganadero", "NombreVet", "ApellidosVet", "TelefonoP", "TelefonoM"});
    TablaDatos titulares =
        Tabla("Titulares", {"Id_Ganadero", "Año", "Censo", "Dias", "Mortalidad", "Perdida", "Cebados"});
    TablaDatos mortalidad = Tabla("X_Tmp7", {"Id_Ganadero", "Texto", "N", "N1"});
    TablaDatos perdida = Tabla("X_Tmp8", {"Id_Ganadero", "Texto", "N"});
};

constexpr std::array<const char*, 12> Meses{"Dic", "Ene", "Feb", "Mar", "Abr", "May",
                                            "Jun", "Jul", "Ago", "Sep", "Oct", "Nov"};
constexpr std::array<int, 12> PartosVacas{3, 6, 9, 12, 8, 4, 2, 1, 0, 2, 5, 4};
constexpr std::array<int, 12> PartosNovillas{0, 1, 3, 4, 2, 1, 0, 0, 0, 1, 1, 0};

void ConPartos(Tablas& t, const Valor& id) {
    for (std::size_t m = 0; m < 12; ++m)
        t.meses.filas.push_back(
            {id, T(Meses[m]), N(PartosVacas[m]), N(PartosNovillas[m]), T("(1/12/25 - 30/11/26)")});
    t.estaciones.filas.insert(t.estaciones.filas.end(), {{id, T("Dic-Feb"), N(26), N(6)},
                                                         {id, T("Mar-May"), N(35), N(10)},
                                                         {id, T("Jun-Ago"), N(4), N(0)},
                                                         {id, T("Sep-Nov"), N(16), N(3)}});
    t.cularidad.filas.push_back({id, N(46), N(38), N(16)});
    t.destete.filas.push_back({id,     N(11), N(47), N(201), N(188), N(221), N(243), N(852),
                               N(967), N(31), N(21), N(25),  N(12),  N(58),  N(36),  N(43),
                               N(21),  N(18), N(6),  N(4),   N(39),  N(1),   N(27)});
    t.intervalos.filas.insert(t.intervalos.filas.end(),
                              {{id, T("Novillas de 1 Parto"), T("12"), N(421), T("5"), N(371), N(7), N(457)},
                               {id, T("Vacas"), T("51"), N(389), T("36"), N(366), N(15), N(444)},
                               {id, T("Todas"), T("63"), N(395), T("41"), N(367), N(22), N(448)}});
    t.sinConfirmar.filas.push_back({id, T("Preñez no confirmada"), T("( 4 )")});
    for (int año = 2025; año > 2022; --año)
        t.titulares.filas.push_back(
            {id, N(año), T("66"), T(año == 2023 ? "–" : "398"), T("8 %"), T("15 %"), T("41 %")});
    t.veterinario.filas.push_back({id, T("María"), T("Suárez Riesgo"), T("985 800 100")});
    t.mortalidad.filas.insert(t.mortalidad.filas.end(), {{id, T("Perinatal"), N(3), N(4)},
                                                         {id, T("Antes de los 30 días"), N(1), N(1)},
                                                         {id, T("Antes del Destete"), N(2), N(3)},
                                                         {id, T("Total"), N(6), N(9)}});
    t.perdida.filas.insert(t.perdida.filas.end(), {{id, T("Por Preñez Tardía"), T("7,4  Terneros")},
                                                   {id, T("Por Mortalidad Terneros"), T("6  Terneros")},
                                                   {id, T("Pérdida Total"), T("13,4  Terneros")},
                                                   {id, T("% Pérdida"), T("19")}});
}

void SinPartos(Tablas& t, const Valor& id) {
    for (const char* mes : Meses)
        t.meses.filas.push_back({id, T(mes), N(0), N(0), T("(1/12/25 - 30/11/26)")});
    for (const char* periodo : {"Dic-Feb", "Mar-May", "Jun-Ago", "Sep-Nov"})
        t.estaciones.filas.push_back({id, T(periodo), N(0), N(0)});
    t.cularidad.filas.push_back({id});
    Fila destete{id,   N(0), N(0), N(0), N(0), N(0), N(0), N(0), N(0),
                 N(0), N(0), N(0), N(0), N(0), {},   {},   {}};
    destete.insert(destete.end(), {N(0), N(0), N(0), N(0), N(0), N(0)});
    t.destete.filas.push_back(destete);
    for (const char* texto : {"Novillas de 1 Parto", "Vacas", "Todas"})
        t.intervalos.filas.push_back({id, T(texto), T("0"), N(0), T("0"), N(0), N(0), N(0)});
    t.sinConfirmar.filas.push_back({id, T("Preñez no confirmada"), T("( 0 )")});
    for (const char* texto : {"Perinatal", "Antes de los 30 días", "Antes del Destete"})
        t.mortalidad.filas.push_back({id, T(texto), N(0), {}});
    t.mortalidad.filas.push_back({id, T("Total"), N(0), N(0)});
    t.perdida.filas.insert(t.perdida.filas.end(), {{id, T("Por Preñez Tardía"), T("0,0  Terneros")},
                                                   {id, T("Por Mortalidad Terneros"), T("0  Terneros")},
                                                   {id, T("Pérdida Total"), T("0,0  Terneros")},
                                                   {id, T("% Pérdida"), {}}});
}

} // namespace

TablasEnMemoria IndicesTecnicos(int granjas) {
    Tablas t;
    constexpr std::array<const char*, 3> nombres{"José Antonio Álvarez Fernández - Cangas del Narcea",
                                                 "Covadonga Peláez - Somiedo", "Hermanos Feito C.B. - Tineo"};
    for (int g = 0; g < granjas; ++g) {
        const int codigo = 1200044 + g;
        const Valor id = N(codigo);
        t.temp.filas.push_back({std::to_string(codigo), T(nombres[static_cast<std::size_t>(g % 3)]),
                                T("985 810 203 / 609 114 557"), T("2026")});
        const auto censo = [&](const char* rotulo, int n, int bajas) {
            t.censo.filas.push_back({id, T("Censo a: 30/11/26"), T("(1/12/25 - 30/11/26)"), T(rotulo), N(14),
                                     N(2), N(n), N(bajas)});
        };
        censo("Novillas de 1º parto", g == 1 ? 0 : 12, g == 1 ? 0 : 1);
        censo("Vacas de 2 a 6 partos", g == 1 ? 0 : 38, g == 1 ? 0 : 3);
        censo("Vacas de más de 6 partos", g == 1 ? 0 : 19, g == 1 ? 0 : 6);
        if (g == 1)
            SinPartos(t, id);
        else
            ConPartos(t, id);
    }
    TablasEnMemoria fuente;
    for (TablaDatos* tabla :
         {&t.temp, &t.censo, &t.meses, &t.estaciones, &t.cularidad, &t.destete, &t.intervalos,
          &t.sinConfirmar, &t.veterinario, &t.titulares, &t.mortalidad, &t.perdida})
        fuente.Poner(std::move(*tabla));
    return fuente;
}

TablasEnMemoria Registros(int ganaderos) {
    TablaDatos veterinarios = Tabla(
        "Veterinarios",
        {"Id_Veterinario", "DNI", "NombreVet", "ApellidosVet", "Concejo", "FechaAlta", "Usuario", "Direccion",
         "Complemento", "Codigo_Postal", "Localidad", "Provincia", "TelefonoP", "TelefonoM", "Email", "FAX"},
        {{N(7),
          T("09876543B"),
          T("Ángel"),
          T("Menéndez Coto"),
          T("Cangas del Narcea"),
          F(12, 1, 1999),
          T("ANGEL"),
          T("C/ Uría, 21"),
          {},
          T("33800"),
          T("Cangas del Narcea"),
          T("Asturias"),
          T("985 810 222")},
         {N(12), T("10345678A"), T("María"), T("Suárez Riesgo"), T("Tineo"), F(3, 5, 2004), T("MARIA"),
          T("Plaza Mayor, 4"), T("2.º B"), T("33870"), T("Tineo"), T("Asturias"), T("985 800 100"),
          T("609 000 111"), T("maria@ejemplo.es"), T("985 800 101")},
         {N(31), {}, T("Nuria"), T("Ñáñez"), T("Allande"), {}, T("NURIA")}});
    TablaDatos granjas = Tabla(
        "Ganaderos", {"Id_Ganadero", "DNI", "Nombre", "Apellidos", "Apodo", "Concejo", "NSocio", "FechaAlta",
                      "FechaBaja", "Id_Veterinario", "NombreVet", "ApellidosVet", "Direccion", "Complemento",
                      "Codigo_Postal", "Localidad", "Provincia", "TelefonoP", "TelefonoM"});
    constexpr std::array<const char*, 6> nombres{"José", "Covadonga", "Ángel", "Manuela", "Óscar", "Pilar"};
    constexpr std::array<const char*, 7> apellidos{
        "Álvarez Fernández",           "Peláez", "Zapico Ñera", "Coto del Río", "Feito Rodríguez", "Ordás",
        "Menéndez-Conde y Llano Ponte"};
    for (int g = 0; g < ganaderos; ++g) {
        const auto u = static_cast<std::size_t>(g);
        Fila fila{N(1200000 + g),
                  T("10999888C"),
                  T(nombres[u % 6]),
                  T(apellidos[u % 7]),
                  std::string("Casa ") + std::to_string(g),
                  T("Cangas del Narcea"),
                  std::to_string(400 + g),
                  F(1 + g % 28, 1 + g % 12, 2001),
                  g % 11 == 3 ? F(15, 6, 2019) : Valor()};
        const bool par = g % 2 == 0;
        const Fila suVeterinario = g % 5 == 0 ? Fila{{}, {}, {}}
                                   : par      ? Fila{N(12), T("María"), T("Suárez Riesgo")}
                                              : Fila{N(7), T("Ángel"), T("Menéndez Coto")};
        fila.insert(fila.end(), suVeterinario.begin(), suVeterinario.end());
        if (g % 7 != 0)
            fila.insert(fila.end(), {T("Barrio de Arriba, s/n"),
                                     {},
                                     T("33810"),
                                     T("Corias"),
                                     T("Asturias"),
                                     T("985 813 000"),
                                     g % 3 == 0 ? Valor() : T("650 123 456")});
        fila.resize(granjas.columnas.size());
        granjas.filas.push_back(std::move(fila));
    }
    TablasEnMemoria fuente;
    fuente.Poner(std::move(veterinarios));
    fuente.Poner(std::move(granjas));
    return fuente;
}

} // namespace ejemplo
