#include "PuestoDeFichas.h"

#include "frame/calendario/Formatos.h"
#include "registers/Ganaderos.h"
#include "registers/datos/Resumen.h"
#include "reports/indices/IndicesTec.h"

using namespace prueba;

namespace {

// Farmer 12 with two bulls (1,5 each), the second gone on 1 June 2025, and cows in the herd since 2023.
void PonerRebaño(PuestoDeFichas& p) {
    p.Poner("T_Ganaderos", "Id_Ganadero=12, Nombre=Nora, ObsSP=extensivo");
    p.Poner("T_Sementales", "Id_Semental=1201, Id_Ganadero=12");
    p.Poner("T_Sementales", "Id_Semental=1202, Id_Ganadero=12, FechaBaja=1/6/2025");
    for (const double vaca : {120001.0, 120002.0, 120003.0, 120004.0}) {
        p.Poner("T_Vacas", "Id_Vaca, Id_Ganadero=12, NombreC", vaca, TextoNumero(vaca));
        p.Poner("T_Cubriciones", "Id_Vaca, Año_Ref=2024, N_Parto=1, Fecha_Parto=5/3/2023", vaca);
    }
}

std::string Lineas(PuestoDeFichas& p, double ganadero = 12) {
    std::string t;
    for (const auto& año : LeerResumen(p.sesion.conexion, ganadero)) {
        t += t.empty() ? "" : "/";
        for (const auto& celda : año.Celdas())
            t += celda + "|";
    }
    return t;
}

} // namespace

class PruebaResumen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // At 1/12/24 the load is 4 cows and 2 bulls, 7; at 1/12/23 too (their calvings are of 2023, and the record of 2024 is within year 2024); at
    // 1/12/25 one bull has gone: 5,5, which the load rounds to 6. So 2024 has 7, and 2025 the mean 6,5, shown as 7.
    void Cifras_data() {
        // fila: field=value; year 2025
        Caso("only IPR", "", "", "2025|7|Inv.||||||||||");
        Caso("no year of its own", "T_SistemaProduccion", "TipoSP=SE", "2025|7|Inv.|||||||||SE|");
        Caso("land", "T_AbonadoSuperficie", "Abonado=Bueno,HasNoCom=20,HasAbonadas=4.5",
             "2025|7|Inv.|Bueno|22|0,4|||||||"); // 22,5 to the even one; 0,35 away from zero
        Caso("no land", "T_AbonadoSuperficie", "Abonado=Bueno,HasNoCom=0,HasAbonadas=4",
             "2025|7|Inv.|Bueno|||||||||");
        Caso("land unknown", "T_AbonadoSuperficie", "HasAbonadas=4", "2025|7|Inv.||||||||||");
        Caso("pastures", "T_PastosComunales", "InicioPC=1/5/25,FinPC=31/5/25,AlimPC=Buena,novvacaspc=3.5",
             "2025|7|Inv.||||30|Buena|50||||");
        Caso("pastures without start", "T_PastosComunales", "FinPC=2/1/1900", "2025|7|Inv.||||3||0||||");
        Caso("pastures empty", "T_PastosComunales", "AlimPC=Buena", "2025|7|Inv.||||0|Buena|0||||");
        Caso("winter", "T_AlimentacionInvernal", "InicioPI=30/11/24,FinPI=1/3/25,AlimPI=Bueno",
             "2025|7|Inv.|||||||91|Bueno||");
        Caso("winter without end", "T_AlimentacionInvernal", "InicioPI=30/11/24,AlimPI=Bueno",
             "2025|7|Inv.||||||||Bueno||");
        Caso("winter no date", "T_AlimentacionInvernal", "InicioPI=31/02/24,FinPI=1/3/25",
             "2025|7|Inv.||||||||||");
    }
    void Cifras() {
        const auto [tabla, fila, linea] = DelCaso<QString, QString, QString>();
        PuestoDeFichas p;
        PonerRebaño(p);
        p.Poner("T_IPR", "Id_Ganadero=12, AñoNatural=2025, PartosAgrup=Inv.");
        if (!tabla.isEmpty())
            p.PonerFila(tabla.toStdString(),
                        u"Id_Ganadero=12, AñoNatural=2025, "_s + QString(fila).replace(u","_s, u", "_s), {});
        QCOMPARE(Lineas(p), linea.toStdString());
    }

    void UnaPorIPR() {
        PuestoDeFichas p;
        PonerRebaño(p);
        QCOMPARE(Lineas(p), std::string());
        p.Poner("T_AbonadoSuperficie", "Id_Ganadero=12, AñoNatural=2020, Abonado=Bueno");
        p.Poner("T_IPR", "Id_Ganadero=12, PrimVac=1/1/20"); // the sheet without years made it
        p.Poner("T_IPR", "Id_Ganadero=14, AñoNatural=2025");
        for (const int año : {2026, 2024, 2025, 0})
            p.Poner("T_IPR", "Id_Ganadero=12, AñoNatural", año);
        // 2026: one bull and four cows at both ends, 6; year 0 has no dates and so no load
        const std::string vacias(10, '|');
        QCOMPARE(Lineas(p), "0||" + vacias + "/2024|7|" + vacias + "/2025|7|" + vacias + "/2026|6|" + vacias);
        QCOMPARE(Lineas(p, 14), "2025|0|" + vacias);
    }

    // A load that was counted for the end of a year serves the next one only where it is what would be counted anew. It travels with two figures
    // of the year: 1/12/1949 becomes one of 2049, 1/12/2050 one of 1950.
    void CargaDeAnosLejanos() {
        PuestoDeFichas p;
        PonerRebaño(p);
        int n = 0;
        for (const auto& [año, nace] :
             {std::pair{1949, "1/6/1949"}, {2050, "1/6/2048"}, {2025, "1/6/2024"}}) {
            for (int i = 0; i < 10; ++i)
                p.Poner("T_Partos",
                        "Id_Parto, Id_Vaca=120001, N_Parto, Año_Ref, Fecha_Parto, DESTINOTERNERO=Recría", ++n,
                        n, año, F(nace));
        }
        for (const int año : {1949, 1950, 2025, 2026, 2048, 2049, 2050, 2051})
            p.Poner("T_IPR", "Id_Ganadero=12, AñoNatural", año);
        auto& c = p.sesion.conexion;
        const auto resumen = LeerResumen(c, 12);
        QCOMPARE(resumen.size(), 8U);
        for (const auto& r : resumen) {
            const double año = std::stod(r.año);
            const double ambos =
                std::stod(CargaUGM(c, 12, año, "INICIO")) + std::stod(CargaUGM(c, 12, año, "FIN"));
            QVERIFY2(r.ugm == FormatoNumero(ambos / 2, "####0"), r.año.c_str());
        }
    }

    // In the sheet: worked out each time it comes up, with the types of years without a line kept out of sight.
    void EnLaFicha() {
        PuestoDeFichas p;
        PonerRebaño(p);
        for (const auto& [año, tipo] : {std::pair{2019, "viejo"}, {2020, "otro"}, {2025, "SE"}})
            p.Poner("T_SistemaProduccion", "Id_Ganadero=12, AñoNatural, TipoSP", año, tipo);
        for (const int año : {2024, 2025, 2025}) // a year twice is one line
            p.Poner("T_IPR", "Id_Ganadero=12, AñoNatural", año);
        AlaVista<Ganaderos> f(p.sesion);
        f.CargarFicha(12);
        auto* tab = f.findChild<QTabWidget*>(u"TabGanaderos"_s);
        const auto ir = [&](int i) {
            tab->setCurrentIndex(i);
            f.findChild<QAbstractButton*>(u"IconoNav(3)"_s)->click();
        };
        auto* rejilla = f.findChild<QTableWidget*>(u"GridSP"_s);
        const auto filas = [rejilla] {
            QString t;
            for (int i = 0; i < rejilla->rowCount(); ++i)
                t += rejilla->item(i, 0)->text() + rejilla->item(i, 1)->text() +
                     rejilla->item(i, 11)->text() + u'/';
            return t;
        };
        const auto tipos = [&p] {
            return p.Texto("SELECT AñoNatural, TipoSP FROM T_SistemaProduccion ORDER BY AñoNatural");
        };
        ir(3);
        QCOMPARE(filas(), u"20247/20257SE/20257SE/"_s); // two rows of a year are two lines
        auto* año = f.findChild<QLineEdit*>(u"Ct_TipoSP(0)"_s);
        auto* tipo = f.findChild<QLineEdit*>(u"Ct_TipoSP(1)"_s);
        const auto linea = [&](const char* a, const char* t) {
            año->setFocus();
            TeclearEn(*año, a);
            TeclearEn(*tipo, t);
            QTest::keyClick(tipo, Qt::Key_Return);
        };
        linea("2020", "nuevo"); // kept without a line, and so cannot be written over unseen
        QCOMPARE(p.Caja(), u"Ya existe una línea para el año natural 2020"_s);
        QTest::keyClick(tipo, Qt::Key_Escape);
        linea("2021", "nuevo");
        QVERIFY(p.Caja().startsWith(u"El año queda guardado, pero no se ve en la tabla"_s));
        QCOMPARE(tipos(), "2019|viejo/2020|otro/2021|nuevo/2024|-/2025|SE"s);
        QCOMPARE(filas(), u"20247/20257SE/20257SE/"_s); // two rows of a year are two lines
        rejilla->setCurrentCell(1, 0);
        p.cajas.Responder(true);
        QTest::keyClick(rejilla, Qt::Key_Delete);
        QCOMPARE(p.Caja(), u"Eliminar la línea para 2025"_s);
        QCOMPARE(tipos(), "2019|viejo/2020|otro/2021|nuevo/2024|-"s);
        p.Poner("T_Sementales", "Id_Semental=1203, Id_Ganadero=12");
        p.Poner("T_Sementales", "Id_Semental=1204, Id_Ganadero=12");
        ir(0);
        ir(3);
        QCOMPARE(filas(), u"202410/202510/202510/"_s);
        TeclearEn(*tipo, "x"); // what is being typed outlives a look at another tab
        ir(0);
        ir(3);
        QCOMPARE(tipo->text(), u"x"_s);
        QTest::keyClick(tipo, Qt::Key_Escape);
    }
};

PRUEBA(PruebaResumen)
#include "PruebaResumen.moc"
