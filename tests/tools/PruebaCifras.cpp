#include "prueba.h"

#include "reports/TablasDeInformes.h"
#include "reports/figuras/Explicaciones.h"
#include "reports/figuras/Figuras.h"
#include "reports/motor/DisposicionesIncluidas.h"
#include "reports/motor/Informe.h"
#include "store/Conversion.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"
#include "store/Recordset.h"

using namespace prueba;

// Where the printed figures come from, on the two sample databases.
class PruebaCifras : public QObject {
    Q_OBJECT

    int m_preguntadas = 0;
    int m_animales = 0;

    static void Abrir(Conexion& c, const QTemporaryDir& carpeta, const QString& fichero) {
        const auto base = carpeta.filePath(fichero).toStdString();
        ConvertirAccess(Ruta((QStringLiteral(PASTORIX_EJEMPLO "/") + fichero).toStdString()), Ruta(base),
                        kClave);
        c.AbrirFichero(base, kClave);
    }
    void Preguntar(Conexion& c, double ganadero, const char* layout) {
        PeticionInforme peticion;
        peticion.ganadero = ganadero;
        if (QByteArray(layout).endsWith("ParamTecnicos.rpt"))
            peticion.parametros = {{"Inicio", "1/12"}, {"Fin", "1/12"}};
        const auto informe = GenerarInforme(LeerDisposicionDeFichero(layout), TablasDeInformes(c), peticion);
        for (const Pagina& pagina : informe.paginas.paginas) {
            for (const Trozo& trozo : pagina.trozos) {
                const auto* texto = std::get_if<TextoColocado>(&trozo);
                if (!texto || texto->figura < 0)
                    continue;
                const QString clave = informe.paginas.figuras.at(texto->figura);
                const auto e = ExplicarFigura(c, clave.toStdString());
                const QByteArray donde = (clave + u" printed "_s + texto->texto).toUtf8();
                QVERIFY2(e, donde);
                const auto impreso = NumeroDeCelda(texto->texto.section(u' ', 0, 0).toStdString());
                QVERIFY2(impreso, donde);
                QVERIFY2(*impreso == e->valor, donde + " listed " + QByteArray::number(e->valor));
                QVERIFY(!e->titulo.empty() && !e->como.empty() && !e->fechas.empty());
                QVERIFY2(std::all_of(e->contados.begin(), e->contados.end(),
                                     [](const AnimalContado& a) { return a.vaca > 0 || !a.dato.empty(); }),
                         donde);
                ++m_preguntadas;
                m_animales += static_cast<int>(e->contados.size());
            }
        }
    }

private Q_SLOTS:
    void Muestras_data() {
        Caso("main", u"BD_PradalC.mdb"_s, 5500);
        Caso("personal", u"BD_PradalP.mdb"_s, 2800);
    }
    // Every figure that can be asked, of every farmer in five years: what is worked out of the listed animals alone is what is printed, and
    // each of them has a cow.
    void Muestras() {
        const auto [fichero, preguntas] = DelCaso<QString, int>();
        QTemporaryDir carpeta;
        Conexion c;
        Abrir(c, carpeta, fichero);
        m_preguntadas = m_animales = 0;
        std::vector<double> ganaderos;
        for (Recordset rs(c, "SELECT Id_Ganadero FROM T_Ganaderos"); !rs.Eof(); rs.Siguiente())
            ganaderos.push_back(rs[0].Numero());
        for (const double ganadero : ganaderos) {
            for (const char* año : {"2022", "2023", "2024", "2025", "2026"}) {
                LlenarIndicesTecnicos(c, {{ganadero}, año});
                Preguntar(c, ganadero, PASTORIX_LAYOUTS "/IndTecnicos.rpt");
                LlenarParametrosTecnicos(c, {{ganadero}, año});
                Preguntar(c, ganadero, PASTORIX_LAYOUTS "/ParamTecnicos.rpt");
            }
            if (const auto años = AñosConCubriciones(c, ganadero); !años.empty()) {
                LlenarResumen(c, ganadero, años);
                Preguntar(c, ganadero, PASTORIX_LAYOUTS "/ResumenIT.rpt");
            }
        }
        QVERIFY2(m_preguntadas > preguntas, qPrintable(QString::number(m_preguntadas)));
        QVERIFY2(m_animales > m_preguntadas, qPrintable(QString::number(m_animales)));
    }

    // The headlines of the three years before are those that the reports of these years print.
    void Titulares() {
        QTemporaryDir carpeta;
        Conexion c;
        Abrir(c, carpeta, u"BD_PradalP.mdb"_s);
        const auto titulares = [&](const char* año) {
            LlenarIndicesTecnicos(c, {{3040}, año});
            return TablasDeInformes(c).Leer("Titulares").filas;
        };
        const auto filas = titulares("2025");
        QCOMPARE(filas.size(), 3U);
        for (std::size_t i = 0; i < filas.size(); ++i) {
            const std::string año = std::to_string(2024 - static_cast<int>(i));
            LlenarIndicesTecnicos(c, {{3040}, año});
            std::vector<std::string> impresos{"3040", año};
            for (const char* sentencia :
                 {"SELECT Sum(N1) AS S FROM X_Temp1", "SELECT N1 FROM X_Tmp6 WHERE Texto = 'Todas'",
                  "SELECT N1 & ' %' AS T FROM X_Tmp7 WHERE Texto = 'Total'",
                  "SELECT N & ' %' AS T FROM X_Tmp8 WHERE Texto = '% Pérdida'",
                  "SELECT P_CEBOSHP & ' %' AS T FROM X_Tmp4"})
                impresos.push_back(ValorDeCampo(c, sentencia));
            for (std::size_t k = 0; k < impresos.size(); ++k)
                QCOMPARE(TextoDe(filas[i][k]), impresos[k]);
        }
        const auto vacios = titulares("2019"); // before the first records
        QCOMPARE(TextoDe(vacios.at(2)[2]), "–"s);
        QCOMPARE(TextoDe(vacios.at(2)[4]), "–"s);
    }

    void ClavesDesconocidas() {
        Conexion c;
        for (const char* clave :
             {"", "Censo", "Censo;12", "Nada;12;2025", "Censo;12;2025;Otra", "Partos;12;2025;Dic;<3",
              "Intervalo;12;2025;Todas;7;N", "Destete;12;2025;=;Color", "Mortalidad;12;2025;Vejez",
              "Epoca;12;2025;Verano;=1", "Reparto;12;2025;Mar-May", "Cularidad;12;2025;Culón",
              "CularidadDestete;12;2025;Azul;N", "Cebo;12;2025;Cerdos", "Inventario;12;2025;Cerdos;FIN"})
            QVERIFY2(!ExplicarFigura(c, clave), clave);
    }
};

PRUEBA(PruebaCifras)
#include "PruebaCifras.moc"
