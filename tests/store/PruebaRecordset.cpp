#include "BaseDePrueba.h"

#include "store/Literales.h"

using namespace prueba;

class PruebaRecordset : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Claves() {
        Base b;
        QCOMPARE(SiguienteId(b.c, "SELECT Id_Vaca FROM T_Vacas ORDER BY Id_Vaca"), 1.0);
        b.Poner("T_Vacas", "Id_Vaca=7");
        b.Poner("T_Vacas", "Id_Vaca=3");
        QCOMPARE(SiguienteId(b.c, "SELECT Nombre, Id_Vaca FROM T_Vacas ORDER BY Id_Vaca", 1), 8.0);
        QCOMPARE(ValorDeCampo(b.c, "SELECT Nombre FROM T_Vacas"), std::string());
        QCOMPARE(ValorDeCampo(b.c, "SELECT Nombre FROM T_Vacas WHERE Id_Vaca = 99"), std::string());
        QCOMPARE(ValorDeCampo(b.c, "SELECT Nombre, Id_Vaca FROM T_Vacas ORDER BY Id_Vaca", 1), "3"s);
        // a taken or missing key is refused and nothing changes
        QCOMPARE(Numero([&] { b.Poner("T_Vacas", "Id_Vaca=3, Nombre=otra"); }),
                 long(CodigoError::Restriccion));
        QCOMPARE(Numero([&] { b.Poner("T_Vacas", "Nombre=sin código"); }), long(CodigoError::Restriccion));
        QUEDA(b, "Id_Vaca, Nombre FROM T_Vacas ORDER BY Id_Vaca", "3|-/7|-");
    }

    void Conversiones() {
        Base b;
        Recordset rs(b.c, "SELECT * FROM T_Vacas");
        rs.AddNew();
        rs["ID_VACA"] = "12001";
        rs["Nombre"] = "d'Arriba \"La\" ñ";
        rs["Calificacion"] = "2,5";
        rs["MG_PN"] = Valor();
        rs["FechaNac"] = "1/3/24";
        rs["FechaCompra"] = F("29/2/2004");
        rs["CrotalANT"] = 2.5;
        rs["RegSaneam"] = "";
        QCOMPARE(Numero([&] { rs["MG_PD"] = "dos"; }), long(CodigoError::TipoInadecuado));
        QCOMPARE(Numero([&] { rs["Nombre"] = std::string(51, 'x'); }), long(CodigoError::TipoInadecuado));
        rs.Update();
        QCOMPARE(rs["Calificacion"].Numero(), 2.5); // the new row is the current one
        Recordset leido(b.c, "SELECT * FROM T_Vacas WHERE Id_Vaca = 12001");
        QCOMPARE(leido["Nombre"].Texto(), "d'Arriba \"La\" ñ"s);
        QCOMPARE(leido["Calificacion"].Texto(), "2,5"s);
        QVERIFY(leido["MG_PN"].Nulo());
        QCOMPARE(leido["MG_PN"].Numero(), 0.0);
        QCOMPARE(leido["FechaNac"].FechaValor(), F("1/3/2024"));
        QCOMPARE(leido["FechaCompra"].Texto(), "29/02/04"s);
        QCOMPARE(leido["CrotalANT"].Texto(), "2,5"s);
        QVERIFY(!leido["RegSaneam"].Nulo()); // empty text is not Null
        QCOMPARE(std::string(leido["Nombre"].Vista()), leido["Nombre"].Texto());
        QCOMPARE(Numero([&] { (void)leido["NoHay"].Texto(); }), long(CodigoError::ColumnaDesconocida));
        QCOMPARE(leido[0].Entero(), std::int64_t(12001));

        // whole columns take the nearest, halves to even; a text that is no date stays as typed
        b.Poner("T_Servicios", "Id_Vaca=1, N_Servicio=2.5, N_Parto=3,5, Fecha_Servicio=31/02/01");
        QUEDA(b, "N_Servicio, N_Parto, Fecha_Servicio FROM T_Servicios", "2|4|31/02/01");
        b.Poner("T_Cebo", "Id_Cebo=1, Id_Ganadero=1, Cambiado", Valor());
        b.Poner("T_Cebo", "Id_Cebo=2, Id_Ganadero=1");
        QUEDA(b, "Id_Cebo FROM T_Cebo WHERE Cambiado = 0", "1/2");
    }

    void Recorrido() {
        Base b;
        for (int i = 1; i <= 5; ++i)
            b.Poner("T_Vacas", "Id_Vaca", double(i));
        // keys rewritten while walking the set sorted by them: no row is met twice
        Recordset rs(b.c, "SELECT * FROM T_Vacas ORDER BY Id_Vaca");
        QCOMPARE(rs.Contar(), 5L);
        for (; !rs.Eof(); rs.Siguiente()) {
            rs["Id_Vaca"] = rs["Id_Vaca"].Numero() + 100;
            rs.Update();
        }
        QUEDA(b, "Id_Vaca FROM T_Vacas ORDER BY Id_Vaca", "101/102/103/104/105");
        QVERIFY(rs.Eof());
        QCOMPARE(Numero([&] { (void)rs["Id_Vaca"].Numero(); }), long(CodigoError::SinFilaActual));
        rs.Ultimo();
        QCOMPARE(rs["Id_Vaca"].Numero(), 105.0);
        rs.Delete();
        rs.Primero();
        rs["Nombre"] = "no guardada"; // leaving the row forgets what was not updated
        rs.Siguiente();
        QUEDA(b, "Id_Vaca, Nombre FROM T_Vacas ORDER BY Id_Vaca", "101|-/102|-/103|-/104|-");
        b.c.Execute("DELETE FROM T_Vacas WHERE Id_Vaca = 102");
        rs["Nombre"] = "tarde";
        QCOMPARE(Numero([&] { rs.Update(); }), long(CodigoError::SinFilaActual));

        Recordset lectura(b.c, "SELECT * FROM T_Vacas", Cursor::Estatico, Bloqueo::SoloLectura);
        QCOMPARE(Numero([&] { lectura["Nombre"] = "x"; }), long(CodigoError::SoloLectura));
        lectura.Cerrar();
        QCOMPARE(Numero([&] { (void)lectura["Nombre"].Texto(); }), long(CodigoError::ObjetoCerrado));
    }

    void Uniones() {
        Base b;
        b.Poner("T_Ganaderos", "Id_Ganadero=12, Nombre=Nora");
        b.Poner("T_Direcciones", "Id_Direccion=1, Id_GV=12");
        b.Poner("T_Direcciones", "Id_Direccion=2, Id_GV=12");
        b.Poner("T_Direcciones", "Id_Direccion=3, Id_GV=57");
        {
            // the address goes, the farmer stays
            Recordset rs(b.c,
                         "SELECT T_Ganaderos.*, T_Direcciones.* FROM T_Ganaderos INNER JOIN T_Direcciones ON "
                         "T_Ganaderos.Id_Ganadero = T_Direcciones.Id_GV WHERE Id_GV <> 1",
                         Cursor::Dinamico);
            QCOMPARE(rs.Contar(), 2L);
            QVERIFY(rs["T_Ganaderos.Id_Direccion"].Nulo());
            QCOMPARE(rs["T_Direcciones.Id_Direccion"].Numero(), 1.0);
            for (; !rs.Eof(); rs.Siguiente())
                rs.Delete();
        }
        QUEDA(b, "Id_Direccion FROM T_Direcciones", "3");
        QUEDA(b, "Nombre FROM T_Ganaderos", "Nora");

        b.Poner("T_Vacas", "Id_Vaca=12001, Id_Ganadero=12");
        b.Poner("T_Partos", "Id_Parto=1, Id_Vaca=12001, Id_Cebo=4");
        b.Poner("T_Partos", "Id_Parto=2, Id_Vaca=12001, Id_Cebo=4");
        Recordset rs(b.c, "SELECT T_Partos.Id_Cebo, T_Vacas.Id_Ganadero, T_Partos.FechaDestete FROM T_Vacas "
                          "INNER JOIN T_Partos ON "
                          "T_Vacas.Id_Vaca = T_Partos.Id_Vaca WHERE T_Partos.Id_Cebo = 4");
        rs["FechaDestete"] = F("1/9/2026");
        rs.Update();
        QUEDA(b, "FechaDestete FROM T_Partos ORDER BY Id_Parto", "01/09/26/-");

        Recordset grupo(b.c, "SELECT Id_Vaca, Count(Id_Parto) AS N FROM T_Partos GROUP BY Id_Vaca");
        QCOMPARE(Numero([&] { grupo["Id_Vaca"] = 1; }), long(CodigoError::SoloLectura));
    }

    // The row just added is the current one, to read and to change, and no other is in its way.
    void AñadirSinLeer() {
        Base b;
        b.Poner("T_Vacas", "Id_Vaca=1");
        auto rs = Recordset::ParaAñadir(b.c, "SELECT * FROM T_Vacas");
        QCOMPARE(rs.Contar(), 0L);
        QVERIFY(rs.Eof());
        for (int i = 2; i <= 4; ++i) {
            rs.AddNew();
            QVERIFY(rs["Nombre"].Nulo()); // nothing of the row before
            rs["Id_Vaca"] = i;
            if (i != 3) {
                rs["Nombre"] = "Vaca número " + std::to_string(i);
                rs["NombreC"] = rs["Nombre"].Vista();
            }
            rs.Update();
            if (i != 3)
                QCOMPARE(rs["Id_Vaca"].Numero(), 1.0 * i);
        }
        QCOMPARE(rs["NombreC"].Vista(), std::string_view("Vaca número 4"));
        QVERIFY(rs["Crotal"].Nulo());
        rs["Nombre"] = "otro";
        QCOMPARE(rs["Nombre"].Texto(), "otro"s);
        rs.Update();
        QUEDA(b, "Id_Vaca, Nombre, NombreC FROM T_Vacas ORDER BY Id_Vaca",
              "1|-|-/2|Vaca número 2|Vaca número 2/3|-|-/4|otro|Vaca número 4");
        rs.Delete();
        rs.CancelarCambios();
        QCOMPARE(Numero([&] { (void)rs["Nombre"].Texto(); }), long(CodigoError::SinFilaActual));

        // a row that is refused can be mended and tried again
        rs.AddNew();
        rs["Id_Vaca"] = 3;
        rs["Nombre"] = "Nueva";
        QCOMPARE(Numero([&] { rs.Update(); }), long(CodigoError::Restriccion));
        rs["Id_Vaca"] = 9;
        rs.Update();
        // a walk that adds rows on its way does not meet them
        Recordset paseo(b.c, "SELECT * FROM T_Vacas ORDER BY Id_Vaca");
        int pasos = 0;
        for (; !paseo.Eof() && pasos < 50; paseo.Siguiente(), ++pasos) {
            const double id = paseo["Id_Vaca"].Numero();
            auto nueva = Recordset::ParaAñadir(b.c, "SELECT * FROM T_Vacas");
            nueva.AddNew();
            nueva["Id_Vaca"] = id + 100;
            nueva.Update();
            paseo["Nombre"] = "vista";
            paseo.Update();
        }
        QCOMPARE(pasos, 4);
        QUEDA(b, "Id_Vaca FROM T_Vacas WHERE Nombre = 'vista' ORDER BY Id_Vaca", "1/2/3/9");
    }

    // What a failed statement leaves, and a failed commit.
    void Grupos() {
        Base b;
        const auto cuenta = [&] { return b.Texto("SELECT Count(Id_Vaca) AS N FROM T_Vacas"); };
        QCOMPARE(Numero([&] {
                     EnGrupo(b.c, [&] {
                         b.Poner("T_Vacas", "Id_Vaca=1");
                         EnGrupo(b.c, [&] { b.Poner("T_Vacas", "Id_Vaca=2"); });
                         b.Poner("T_Vacas", "Id_Vaca=1");
                     });
                 }),
                 long(CodigoError::Restriccion));
        QCOMPARE(cuenta(), "2"s); // done before the failure stays, and is committed
        QCOMPARE(sqlite3_get_autocommit(b.c.Manejador()), 1);
        QCOMPARE(EnGrupo(b.c, [&] { return 42; }), 42);

        EnGrupo(b.c, [&] { b.Poner("T_Vacas", "Id_Vaca=3"); });
        // a commit that fails is an error of its own
        sqlite3_busy_timeout(b.c.Manejador(), 0);
        Conexion lector;
        lector.AbrirFichero(b.fichero, kClave);
        Sql(lector, "BEGIN; SELECT * FROM T_Vacas");
        QCOMPARE(Numero([&] { EnGrupo(b.c, [&] { b.Poner("T_Vacas", "Id_Vaca=4"); }); }),
                 long(CodigoError::Bloqueada));
        Sql(lector, "COMMIT");
        QCOMPARE(cuenta(), "3"s);
        EnGrupo(b.c, [&] { b.Poner("T_Vacas", "Id_Vaca=4"); });
        QCOMPARE(cuenta(), "4"s);
    }

    // A set that is deleted to be written anew is whole or as it was; what the group did before stays.
    void TodoONadaDelConjunto() {
        Base b;
        b.Poner("T_Vacas", "Id_Vaca=1");
        QCOMPARE(Numero([&] {
                     EnGrupo(b.c, [&] {
                         b.Poner("T_Vacas", "Id_Vaca=2");
                         TodoONada(b.c, [&] {
                             b.c.Execute("DELETE FROM T_Vacas");
                             TodoONada(b.c, [&] { b.Poner("T_Vacas", "Id_Vaca=3"); });
                             b.Poner("T_Vacas", "Id_Vaca=3");
                         });
                     });
                 }),
                 long(CodigoError::Restriccion));
        QUEDA(b, "Id_Vaca FROM T_Vacas ORDER BY Id_Vaca", "1/2");
        TodoONada(b.c, [&] { b.c.Execute("DELETE FROM T_Vacas WHERE Id_Vaca = 1"); });
        QUEDA(b, "Id_Vaca FROM T_Vacas", "2");
        QCOMPARE(sqlite3_get_autocommit(b.c.Manejador()), 1);
    }

    // What other programs left in a column goes back into it, though nobody could type it.
    void ReponerLoLeido() {
        Base b;
        const std::string largo(300, 'x');
        Sql(b.c, ("INSERT INTO T_Vacas (Id_Vaca, Nombre, MG_PN, FechaNac) VALUES (1, '" + largo +
                  "', 'doce', 'ayer')"));
        Recordset leida(b.c, "SELECT * FROM T_Vacas");
        Recordset nueva(b.c, "SELECT * FROM T_Vacas");
        nueva.AddNew();
        nueva["Id_Vaca"] = 2;
        for (const char* columna : {"Nombre", "MG_PN", "FechaNac", "Crotal"})
            nueva[columna].Reponer(leida[columna].Leer());
        nueva.Update();
        QCOMPARE(b.Texto("SELECT Nombre, MG_PN, FechaNac, Crotal FROM T_Vacas WHERE Id_Vaca = 2"),
                 b.Texto("SELECT Nombre, MG_PN, FechaNac, Crotal FROM T_Vacas WHERE Id_Vaca = 1"));
        QCOMPARE(Numero([&] { nueva["MG_PN"] = "doce"; }), long(CodigoError::TipoInadecuado));
    }

    void DiscoLleno() {
        Base b;
        b.Poner("T_Vacas", "Id_Vaca=1");
        Sql(b.c, "PRAGMA cache_size=5");
        Sql(b.c, "PRAGMA max_page_count=1"); // no page more than there are
        std::string dicho;
        QCOMPARE(Numero([&] {
                     try {
                         TodoONada(b.c, [&] {
                             for (int i = 2; i < 500; ++i)
                                 b.Poner("T_Vacas", "Id_Vaca, Patologia", double(i), std::string(4000, 'x'));
                         });
                     } catch (const std::exception& e) {
                         dicho = e.what();
                         throw;
                     }
                 }),
                 long(CodigoError::DiscoOFichero));
        QCOMPARE(dicho, "No se ha podido guardar. El disco está lleno"s);
        Sql(b.c, "PRAGMA max_page_count=100000");
        QVERIFY(!b.Texto("SELECT Id_Vaca FROM T_Vacas WHERE Id_Vaca = 1").empty());
        b.Poner("T_Vacas", "Id_Vaca=501");
    }

    void Origenes() {
        Base b;
        OrigenesDeDatos o;
        QVERIFY(o.Declarar(AtributosDeOrigen("OD_PRADALC", b.fichero, kClave)));
        QVERIFY(!o.Declarar(AtributosDeOrigen("OD_X", "", kClave)));
        QVERIFY(!o.Declarar(std::string("DSN=OD_X\0FIL=dBase\0DBQ=x\0", 25)));
        Conexion c;
        c.Abrir(o, "dsn=od_pradalc", kClave);
        QVERIFY(c.Abierta());
        QCOMPARE(Numero([&] { c.Abrir(o, "dsn=OD_PRADALC", kClave); }), long(CodigoError::ObjetoCerrado));
        c.Cerrar();
        QCOMPARE(Numero([&] { c.Execute("DELETE FROM T_Vacas"); }), long(CodigoError::ObjetoCerrado));
        QCOMPARE(Numero([&] { c.Abrir(o, "dsn=OD_NADA", kClave); }), long(CodigoError::NoSePuedeAbrir));
        QCOMPARE(o.Resolver("DSN=OD_PRADALC;DBQ=/otra.mdb").fichero, "/otra.mdb"s);
        QCOMPARE(o.Resolver(CadenaDeConexion("OD_PRADALC", "/a; b/ñ=1.mdb", kClave)).fichero,
                 "/a; b/ñ=1.mdb"s);
        QCOMPARE(Numero([&] { o.Resolver(CadenaDeConexion("OD_NADA", "/a.mdb", kClave)); }),
                 long(CodigoError::NoSePuedeAbrir));
        QCOMPARE(o.Buscar("OD_PRADALC")->fichero, b.fichero);
    }
};

PRUEBA(PruebaRecordset)
#include "PruebaRecordset.moc"
