#include "DatosDeEjemplo.h"

#include <QRegularExpression>
#include <QStringList>

using namespace pastorix;
using namespace Qt::StringLiterals;

namespace ejemplo {

TablaDatos Tabla(const std::string& nombre, std::vector<std::string> columnas, std::vector<Fila> filas) {
    for (Fila& fila : filas)
        fila.resize(columnas.size());
    return {nombre, std::move(columnas), std::move(filas)};
}

namespace {

// Cells by '|': nothing is Null, figures alone are a number, d/m/yyyy is a date; an apostrophe in front makes a text of anything.
Fila FilaDe(const QString& texto) {
    static const QRegularExpression numero(u"^-?[0-9.]+$"_s), fecha(u"^[0-9]+/[0-9]+/[0-9]{4}$"_s);
    Fila fila;
    for (const QString& celda : texto.split(u'|'))
        if (celda.isEmpty())
            fila.emplace_back();
        else if (numero.match(celda).hasMatch())
            fila.emplace_back(celda.toDouble());
        else if (fecha.match(celda).hasMatch())
            fila.emplace_back(*FechaDeTexto(celda.toStdString()));
        else
            fila.emplace_back(celda.mid(celda.startsWith(u'\'') ? 1 : 0).toStdString());
    return fila;
}

struct Tablas {
    std::vector<TablaDatos> todas;

    Tablas(std::initializer_list<std::pair<const char*, const char*>> tablas) {
        for (const auto& [nombre, columnas] : tablas) {
            todas.push_back({nombre, {}, {}});
            for (const auto& columna : QString::fromUtf8(columnas).split(u' '))
                todas.back().columnas.push_back(columna.toStdString());
        }
    }
    // Rows by ';', # in them for the code.
    void Poner(const char* tabla, int codigo, const char* filas) {
        for (TablaDatos& t : todas)
            if (t.nombre == tabla)
                for (const auto& fila :
                     QString::fromUtf8(filas).replace(u'#', QString::number(codigo)).split(u';')) {
                    t.filas.push_back(FilaDe(fila));
                    t.filas.back().resize(t.columnas.size());
                }
    }
    TablasEnMemoria Fuente() {
        TablasEnMemoria fuente;
        for (TablaDatos& tabla : todas)
            fuente.Poner(std::move(tabla));
        return fuente;
    }
};

void ConPartos(Tablas& t, int id) {
    t.Poner("X_Temp2", id,
            "#|Dic|3|0;#|Ene|6|1;#|Feb|9|3;#|Mar|12|4;#|Abr|8|2;#|May|4|1;#|Jun|2|0;#|Jul|1|0;#|Ago|0|0;#|"
            "Sep|2|1;#|Oct|5|1;#|Nov|4|0");
    t.Poner("X_TempGraph", id, "#|Dic-Feb|26|6;#|Mar-May|35|10;#|Jun-Ago|4|0;#|Sep-Nov|16|3");
    t.Poner("X_Tmp3", id, "#|46|38|16");
    t.Poner("X_Tmp4", id, "#|11|47|201|188|221|243|852|967|31|21|25|12|58|36|43|21|18|6|4|39|1|27");
    t.Poner("X_Tmp6", id,
            "#|Novillas de 1 "
            "Parto|'12|421|'5|371|7|457;#|Vacas|'51|389|'36|366|15|444;#|Todas|'63|395|'41|367|22|448");
    t.Poner("SinConfirmar", id, "#|Preñez no confirmada|( 4 )");
    t.Poner("Titulares", id,
            "#|2025|'66|'398|8 %|15 %|41 %;#|2024|'66|'398|8 %|15 %|41 %;#|2023|'66|–|8 %|15 %|41 %");
    t.Poner("Veterinario", id, "#|María|Suárez Riesgo|985 800 100");
    t.Poner("X_Tmp7", id, "#|Perinatal|3|4;#|Antes de los 30 días|1|1;#|Antes del Destete|2|3;#|Total|6|9");
    t.Poner("X_Tmp8", id,
            "#|Por Preñez Tardía|7,4  Terneros;#|Por Mortalidad Terneros|6  Terneros;#|Pérdida Total|13,4  "
            "Terneros;#|% Pérdida|'19");
}

void SinPartos(Tablas& t, int id) {
    t.Poner("X_Temp2", id,
            "#|Dic|0|0;#|Ene|0|0;#|Feb|0|0;#|Mar|0|0;#|Abr|0|0;#|May|0|0;#|Jun|0|0;#|Jul|0|0;#|Ago|0|0;#|Sep|"
            "0|0;#|Oct|0|0;#|Nov|0|0");
    t.Poner("X_TempGraph", id, "#|Dic-Feb|0|0;#|Mar-May|0|0;#|Jun-Ago|0|0;#|Sep-Nov|0|0");
    t.Poner("X_Tmp3", id, "#");
    t.Poner("X_Tmp4", id, "#|0|0|0|0|0|0|0|0|0|0|0|0|0||||0|0|0|0|0|0");
    t.Poner("X_Tmp6", id, "#|Novillas de 1 Parto|'0|0|'0|0|0|0;#|Vacas|'0|0|'0|0|0|0;#|Todas|'0|0|'0|0|0|0");
    t.Poner("SinConfirmar", id, "#|Preñez no confirmada|( 0 )");
    t.Poner("X_Tmp7", id, "#|Perinatal|0;#|Antes de los 30 días|0;#|Antes del Destete|0;#|Total|0|0");
    t.Poner("X_Tmp8", id,
            "#|Por Preñez Tardía|0,0  Terneros;#|Por Mortalidad Terneros|0  Terneros;#|Pérdida Total|0,0  "
            "Terneros;#|% Pérdida");
}

} // namespace

TablasEnMemoria IndicesTecnicos(int granjas) {
    Tablas t{{"X_Temp", "C1 C2 C3 C4"},
             {"X_Temp1", "Id_Ganadero C1 C2 T1 NCC NCD N1 N2"},
             {"X_Temp2", "Id_Ganadero Mes N1 N2 C1"},
             {"X_TempGraph", "Id_Ganadero Periodo N1 N2"},
             {"X_Tmp3", "Id_Ganadero N1 N2 N3"},
             {"X_Tmp4", "Id_Ganadero NTN NTV EdadN EdadV PesoN PesoV GDN GDV NacidosIns Normales Aculonados "
                        "Culones TotalCC PN PA PC CEBOSMP CEBOSHP CEBOSMC P_CEBOSHP P_CEBOSMP CEBOSTOTAL"},
             {"X_Tmp6", "Id_Ganadero Texto N N1 N2 N3 N5 N6"},
             {"SinConfirmar", "Id_Ganadero Texto N"},
             {"Veterinario", "Id_Ganadero NombreVet ApellidosVet TelefonoP TelefonoM"},
             {"Titulares", "Id_Ganadero Año Censo Dias Mortalidad Perdida Cebados"},
             {"X_Tmp7", "Id_Ganadero Texto N N1"},
             {"X_Tmp8", "Id_Ganadero Texto N"}};
    const char* const nombres[] = {
        "'#|José Antonio Álvarez Fernández - Cangas del Narcea|985 810 203 / 609 114 557|'2026",
        "'#|Covadonga Peláez - Somiedo|985 810 203 / 609 114 557|'2026",
        "'#|Hermanos Feito C.B. - Tineo|985 810 203 / 609 114 557|'2026"};
    for (int g = 0; g < granjas; ++g) {
        const int id = 1200044 + g;
        t.Poner("X_Temp", id, nombres[g % 3]);
        const QString censo = u"#|Censo a: 30/11/26|(1/12/25 - 30/11/26)|%1|14|2|%2|%3"_s;
        for (const auto& [rotulo, n, bajas] : {std::tuple{"Novillas de 1º parto", 12, 1},
                                               {"Vacas de 2 a 6 partos", 38, 3},
                                               {"Vacas de más de 6 partos", 19, 6}})
            t.Poner("X_Temp1", id,
                    qUtf8Printable(
                        censo.arg(QString::fromUtf8(rotulo)).arg(g == 1 ? 0 : n).arg(g == 1 ? 0 : bajas)));
        (g == 1 ? SinPartos : ConPartos)(t, id);
    }
    return t.Fuente();
}

TablasEnMemoria Registros(int ganaderos) {
    Tablas t{{"Veterinarios",
              "Id_Veterinario DNI NombreVet ApellidosVet Concejo FechaAlta Usuario Direccion Complemento "
              "Codigo_Postal Localidad Provincia TelefonoP TelefonoM Email FAX"},
             {"Ganaderos", "Id_Ganadero DNI Nombre Apellidos Apodo Concejo NSocio FechaAlta FechaBaja "
                           "Id_Veterinario NombreVet ApellidosVet Direccion Complemento Codigo_Postal "
                           "Localidad Provincia TelefonoP TelefonoM"}};
    t.Poner("Veterinarios", 0,
            "7|09876543B|Ángel|Menéndez Coto|Cangas del Narcea|12/1/1999|ANGEL|C/ Uría, 21||'33800|Cangas "
            "del Narcea|Asturias|985 810 222;12|10345678A|María|Suárez Riesgo|Tineo|3/5/2004|MARIA|Plaza "
            "Mayor, 4|2.º B|'33870|Tineo|Asturias|985 800 100|609 000 111|maria@ejemplo.es|985 800 "
            "101;31||Nuria|Ñáñez|Allande||NURIA");
    const auto nombres = u"José Covadonga Ángel Manuela Óscar Pilar"_s.split(u' ');
    const auto apellidos = QStringLiteral("Álvarez Fernández|Peláez|Zapico Ñera|Coto del Río|Feito Rodríguez|"
                                          "Ordás|Menéndez-Conde y Llano Ponte")
                               .split(u'|');
    for (int g = 0; g < ganaderos; ++g) {
        QString fila = u"%1|10999888C|%2|%3|Casa %4|Cangas del Narcea|'%5|%6/%7/2001|"_s.arg(1200000 + g)
                           .arg(nombres[g % 6], apellidos[g % 7])
                           .arg(g)
                           .arg(400 + g)
                           .arg(1 + g % 28)
                           .arg(1 + g % 12);
        fila += g % 11 == 3 ? u"15/6/2019|"_s : u"|"_s;
        fila += g % 5 == 0 ? u"||"_s : g % 2 == 0 ? u"12|María|Suárez Riesgo"_s : u"7|Ángel|Menéndez Coto"_s;
        if (g % 7 != 0)
            fila += u"|Barrio de Arriba, s/n||'33810|Corias|Asturias|985 813 000|"_s;
        if (g % 7 != 0 && g % 3 != 0)
            fila += u"650 123 456"_s;
        t.Poner("Ganaderos", 0, qUtf8Printable(fila));
    }
    return t.Fuente();
}

} // namespace ejemplo
