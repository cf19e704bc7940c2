#include "BaseDePrueba.h"
#include "prueba.h"

#include "registers/datos/FechasVacu.h"
#include "registers/datos/NombreCompuesto.h"
#include "registers/datos/PatologiasSemental.h"
#include "registers/datos/ReglasSemental.h"

using namespace pastorix;
using namespace prueba;

// What the bull file does to the database, without its window.
class PruebaSementalesDatos : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Codigo_data() {
        // toros: his
        Columnas<double, QList<double>, QString>("ganadero", "toros", "propuesto");
        Caso("farmer 1 counts from 1", 1.0, QList<double>{}, "1");
        Caso("farmer 1 goes on", 1.0, QList<double>{1, 36}, "37");
        Caso("first of a farmer", 57.0, QList<double>{}, "57001");
        Caso("second", 57.0, QList<double>{57001}, "57002");
        Caso("long code", 57000.0, QList<double>{57000099}, "57000100");
        Caso("number equal to the code", 3040.0, QList<double>{3039}, "3040");
        Caso("foreign small number", 3040.0, QList<double>{12}, "3040013");
        Caso("order of entry does not matter", 57.0, QList<double>{57009, 57002}, "57010");
    }
    void Codigo() {
        QFETCH(double, ganadero);
        QFETCH(QList<double>, toros);
        QFETCH(QString, propuesto);
        Base b;
        b.Poner("T_Sementales", {{"Id_Semental", 99999999.0}, {"Id_Ganadero", 2.0}}); // another's
        for (const double t : toros)
            b.Poner("T_Sementales", {{"Id_Semental", t}, {"Id_Ganadero", ganadero}});
        QCOMPARE(QString::fromStdString(CodigoDeSemental(b.c, ganadero)), propuesto);
    }

    void NombresYEdades() {
        for (const auto& [clase, ganadero, nombre] : {std::array{"G-Culón", "1", "Ares(IA)-C"},
                                                      {"G-Culón", "2", "Ares-C"},
                                                      {"G-Aculonado", "11", "Ares-A"},
                                                      {"g-normal", "1", "Ares(IA)-n"},
                                                      {"Normal", "1", "Ares"},
                                                      {"", "1", "Ares"},
                                                      {"G", "2", "Ares-"}})
            QCOMPARE(NombreCompuesto("Ares", clase, ganadero), std::string(nombre));
        for (const auto& [nacido, año, edad] : {std::array{"31/12/11", "2017", "6"},
                                                {"1/1/11", "2017", "6"},
                                                {"1/1/2011", "17", "6"},
                                                {"1/1/2011", "2011", "0"},
                                                {"5/5/98", "2001", "3"},
                                                {"1/1/2020", "1950", "-70"},
                                                {"1/1/2020", "2049", "29"},
                                                {"", "2017", ""},
                                                {"31/2/11", "2017", ""},
                                                {"1/1/11", "", ""}})
            QCOMPARE(EdadEnAño(FechaDeTexto(nacido), año), std::string(edad));
    }

    // Two rows of one year, a column that the grid does not know and an age that does not read as a whole number go back as they were.
    void PatologiasVuelvenIguales() {
        Base b;
        b.c.Execute("ALTER TABLE T_PatologiaSemR ADD COLUMN Nota DOUBLE");
        for (const double nota : {1.5, 2.5})
            b.Poner("T_PatologiaSemR",
                    {{"Id_Animal", 1.0}, {"ANatural", 2020}, {"IBR", "rara"}, {"Nota", nota}});
        b.Poner("T_PatologiaSemR", {{"Id_Animal", 1.0}, {"ANatural", 2021}});
        b.Poner("T_PatologiaSemR", {{"Id_Animal", 2.0}, {"ANatural", 2020}});
        b.Poner("T_PatologiaSem", {{"Id_Animal", 1.0}, {"ANatural", 2020}, {"Edad", 1.0 / 3}});
        for (const auto* d : {&PatologiaSem(), &PatologiaSemR()}) {
            const auto todo = "SELECT * FROM "s + d->tabla + " ORDER BY Id_Animal, ANatural DESC";
            const auto antes = b.Texto(todo);
            auto lineas = LeerPatologias(b.c, *d, 1);
            lineas.emplace_back().celdas.resize(d->columnas.size()); // without a year
            GuardarPatologias(b.c, *d, 1, lineas);
            QCOMPARE(QString::fromStdString(b.Texto(todo)), QString::fromStdString(antes));
        }
        Recordset rs(b.c, "SELECT Edad FROM T_PatologiaSem");
        QCOMPARE(rs["Edad"].Numero(), 1.0 / 3);
    }

    void Vacunas() {
        Base b;
        b.Poner("T_FechasVacu", "Id_Ganadero=57, Ln=2, IBR=4/5/2021, BVD=1/1/2020");
        b.Poner("T_FechasVacu", {{"Id_Ganadero", 57.0}, {"Ln", 1}, {"IBR", F("20/4/2017")}});
        b.Poner("T_FechasVacu", {{"Id_Ganadero", 57.0}, {"Ln", 3}, {"IBR", F("4/5/2021")}});
        b.Poner("T_FechasVacu", {{"Id_Ganadero", 2.0}, {"Ln", 1}, {"IBR", F("9/9/2019")}});
        QCOMPARE(LeerFechasVacu(b.c, "IBR", "Ln", 57)[0], (std::vector<std::string>{"20/04/17", "04/05/21"}));
        QCOMPARE(LeerFechasVacu(b.c, "NEOSPORA", "Ln", 57)[0], std::vector<std::string>{});
    }
};

PRUEBA(PruebaSementalesDatos)
#include "PruebaSementalesDatos.moc"
