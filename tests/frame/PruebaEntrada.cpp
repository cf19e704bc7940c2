#include "Cajas.h"
#include "Instalacion.h"
#include "frame/Ajustes.h"
#include "store/Reemplazo.h"

using namespace prueba;

namespace {

// Keeps what an entry does to the main window.
class Anotador : public InterfazDeEntrada {
public:
    void FijarTitulo(const QString& t) override { titulo = t; }
    void FijarPanel(const QString& t) override { paneles << t; }
    void Activar(const QString& orden, bool si) override { activas[orden] = si; }
    void ActivarBoton(int boton, bool si) override { activas[QString::number(boton)] = si; }
    bool PreguntarAñosNaturales() override {
        ++preguntas;
        return contestar;
    }
    FuncionAvance EmpezarAvance(const QString& texto) override {
        avances << texto;
        return {};
    }

    QString titulo;
    QStringList paneles, avances;
    QMap<QString, bool> activas;
    int preguntas = 0;
    bool contestar = false;
};

} // namespace

class PruebaEntrada : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Who gets in, as whom, and with which panel text; both entries alike.
    void Usuarios_data() {
        // modo: empty: nobody
        const QString vet = "VETERINARIO";
        Caso("anonymous", "", "", vet, "", " Modo: VETERINARIO");
        Caso("the word", "VETERINARIO", "", vet, "VETERINARIO", " Modo: VETERINARIO");
        Caso("the word, lower case", "veterinario", "", vet, "veterinario", " Modo: veterinario");
        Caso("named", "elopez", "", vet, "elopez", " Modo: elopez");
        Caso("named, other case", "ELopez", "", vet, "ELopez", " Modo: ELopez");
        Caso("central", "CENTRAL", "oficina", "CENTRAL", "CENTRAL", " Modo: BASE DE DATOS CENTRAL");
        Caso("unknown", "nadie", "", "", "", "");
        Caso("veterinarian with a password", "elopez", "x", "", "", "");
        Caso("password alone", "", "oficina", "", "", "");
        Caso("wrong password", "CENTRAL", "oficin", "", "", "");
        Caso("level that is never read", "AUXILIAR", "otra", "", "", "");
        Caso("the word with a password", "VETERINARIO", "x", "", "", "");
        Caso("apostrophe in the user", "O'Donnell", "", "", "", "");
        Caso("apostrophe in the password", "CENTRAL", "o'x", "", "", "");
        Caso("statement in the user", "x' OR '1'='1", "", "", "", "");
        Caso("statement in the password", "CENTRAL", "' OR ''='", "", "", "");
    }
    void Usuarios() {
        const auto [usuario, clave, modo, sesionDe, panel] =
            DelCaso<QString, QString, QString, QString, QString>();
        Arrancada i;
        i.PonerUsuarios();
        for (const int entrada : {0, 1}) {
            Cajas cajas;
            Anotador interfaz;
            QCOMPARE(EntrarEnBase(i.sesion, entrada, usuario, clave, interfaz), !modo.isEmpty());
            QCOMPARE(Q(i.sesion.ModoSesion), modo);
            const auto vistas = cajas.Vistas();
            if (modo.isEmpty()) {
                QCOMPARE(vistas.size(), 1);
                QCOMPARE(static_cast<int>(vistas[0].tipo), 64);
                QCOMPARE(vistas[0].titulo + "|" + vistas[0].texto, u"Adios|Usuario No Autorizado"_s);
                QCOMPARE(interfaz.preguntas, 0);
                continue;
            }
            QVERIFY(vistas.isEmpty());
            QCOMPARE(Q(i.sesion.UsuarioSesion), sesionDe);
            QCOMPARE(interfaz.paneles.last(), panel);
            QCOMPARE(interfaz.titulo, u"PASTORIX.    (3.09)"_s);
            QCOMPARE(interfaz.preguntas, 1);
            if (modo == "VETERINARIO")
                QCOMPARE(interfaz.activas.value("Mnu_Veterinarios"), usuario.isEmpty());
        }
    }

    void LaEntradaEligeLaBase() {
        Arrancada i;
        Cajas cajas;
        i.PonerUsuarios();
        InterfazDeEntrada nada;
        for (const char* usuario : {"elopez", "nadie"}) { // a failed attempt stands in the personal one too
            QCOMPARE(EntrarEnBase(i.sesion, 1, usuario, {}, nada), *usuario == 'e');
            QCOMPARE(Q(i.sesion.conexion.Fichero()), i.sesion.rutas.BasePersonal());
            QCOMPARE(int(i.sesion.BaseElegida), 1);
        }
        QCOMPARE(Q(i.sesion.origenes.Buscar("OD_PSTX")->fichero), i.sesion.rutas.BasePrincipal());
        QVERIFY(QDir(i.En("Temp")).exists() && QDir(i.En("BackUp")).exists());
        QVERIFY(EntrarEnBase(i.sesion, 0, "elopez", {}, nada));
        Conexion& c = i.sesion.conexion; // neither a veterinarian's name counts nor another level
        QVERIFY(!UsuarioLibre(c, "central") && UsuarioLibre(c, "elopez") && UsuarioLibre(c, "AUXILIAR"));
        QCOMPARE(Q(i.sesion.conexion.Fichero()), i.sesion.rutas.BasePrincipal());
        QCOMPARE(int(i.sesion.BaseElegida), 0);
        QCOMPARE(cajas.Tomar().size(), 1);
    }

    // Everything that asks the session's connection reaches the other file, and comes back.
    void LaSesionEnOtroFichero() {
        Arrancada i;
        const std::string propia = i.sesion.conexion.Fichero();
        CopiarBase(i.sesion.conexion, Ruta(i.En("copia; de ñ.mdb").toStdString()));
        Insertar(i.sesion.conexion, "T_Vacas", "Id_Vaca=1");
        AbrirConexionEn(i.sesion, i.En("copia; de ñ.mdb"));
        QCOMPARE(Contar(i.sesion.conexion, "T_Vacas"), 0L);
        Insertar(i.sesion.conexion, "T_Vacas", "Id_Vaca=2");
        AbrirConexionEn(i.sesion, i.En("copia; de ñ.mdb"), true);
        QVERIFY(i.sesion.conexion.SoloLectura());
        i.sesion.conexion.Cerrar();
        i.sesion.conexion.Reabrir(); // with the same arguments
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, i.sesion.conexion.Execute("DELETE FROM T_Vacas"));
        QCOMPARE(Contar(i.sesion.conexion, "T_Vacas", "Id_Vaca = 2"), 1L);
        AbrirConexion(i.sesion);
        QVERIFY(!i.sesion.conexion.SoloLectura());
        QCOMPARE(i.sesion.conexion.Fichero(), propia);
        QCOMPARE(Contar(i.sesion.conexion, "T_Vacas", "Id_Vaca = 1"), 1L);
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, AbrirConexionEn(i.sesion, i.En("no hay.mdb")));
        QVERIFY(!i.sesion.conexion.Abierta());
    }

    void UnaBasePersonalQueNoSeAbreSeDiceYNoHaySesion() {
        Instalacion i;
        Cajas cajas;
        QVERIFY(Arrancar(i.sesion));
        Escribir(i.sesion.rutas.BasePersonal(), "esto no es una base de datos, aunque ocupe su lugar");
        Anotador interfaz;
        QVERIFY(!EntrarEnBase(i.sesion, 1, {}, {}, interfaz));
        const auto vistas = cajas.Vistas();
        QCOMPARE(vistas.size(), 1);
        QCOMPARE(vistas[0].titulo, u" Error de acceso"_s);
        QVERIFY(!vistas[0].causa.isEmpty() && i.sesion.ModoSesion.empty());
        QCOMPARE(interfaz.preguntas, 0);
        QVERIFY(EntrarEnBase(i.sesion, 0, {}, {}, interfaz)); // the other entry still works
    }

    void CadaEntradaTieneSuMarca() {
        SaveSetting("Version_0", {});
        SaveSetting("Version_1", "308");
        Arrancada i;
        InterfazDeEntrada nada;
        QVERIFY(EntrarEnBase(i.sesion, 1, {}, {}, nada));
        QCOMPARE(GetSetting("Version_0", "nada"), QString());
        QCOMPARE(GetSetting("Version_1"), u"309"_s);
        SaveSetting("Version_1", "400"); // of a later release: left alone
        QVERIFY(EntrarEnBase(i.sesion, 1, {}, {}, nada));
        QCOMPARE(GetSetting("Version_1"), u"400"_s);
    }

    void LaPreguntaAnualAbreSusFilas() {
        Arrancada i;
        {
            Conexion c = i.Abrir("BD_PradalP.mdb");
            Insertar(c, "T_Vacas", "Id_Vaca=12001, Id_Ganadero=12");
        }
        Anotador interfaz;
        QVERIFY(EntrarEnBase(i.sesion, 1, {}, {}, interfaz));
        QCOMPARE(Contar(i.sesion.conexion, "T_IBRBVD"), 0L);
        QVERIFY(interfaz.avances.isEmpty());
        interfaz.contestar = true;
        QVERIFY(EntrarEnBase(i.sesion, 1, {}, {}, interfaz));
        QCOMPARE(Contar(i.sesion.conexion, "T_IBRBVD"), 1L);
        QCOMPARE(interfaz.avances, QStringList{"Inicializando Aplicación..."});
    }

    // A locked database is told as what it is, at the login and at the repairs, and nobody is called unauthorized for it.
    void UnBloqueoSeDice() {
        Arrancada i;
        i.PonerUsuarios();
        Cajas cajas;
        Anotador interfaz;
        sqlite3* otro = nullptr;
        sqlite3_open(i.sesion.conexion.Fichero().c_str(), &otro);
        const auto bloquear = [&](const char* como) {
            sqlite3_busy_timeout(i.sesion.conexion.Manejador(), 0);
            sqlite3_exec(otro, como, nullptr, nullptr, nullptr);
        };
        const auto caja = [&] {
            const auto vistas = cajas.Vistas();
            return vistas.size() == 1 ? vistas[0].titulo + "|" + vistas[0].texto + "|" + vistas[0].causa
                                      : QString::number(vistas.size());
        };
        bloquear("BEGIN EXCLUSIVE");
        for (const char* clave : {"", "oficina"}) {
            QVERIFY(!EntrarEnBase(i.sesion, 0, "CENTRAL", clave, interfaz));
            QCOMPARE(caja(), u"Atención|No se ha podido comprobar la base de datos|Otro programa tiene "
                             "bloqueada la base de datos"_s);
            QVERIFY(!ComprobarSesion(i.sesion, "CENTRAL", clave, interfaz));
            QCOMPARE(caja(), u"Atención|No se ha podido comprobar el usuario|Otro programa tiene "
                             "bloqueada la base de datos"_s);
        }
        bloquear("ROLLBACK; BEGIN IMMEDIATE"); // it can be read, not written
        QVERIFY(EntrarEnBase(i.sesion, 0, "CENTRAL", "oficina", interfaz));
        QCOMPARE(caja(), u"Atención|No se ha podido poner al día la base de datos; se intentará en la "
                         "próxima entrada|Otro programa tiene bloqueada la base de datos"_s);
        bloquear("ROLLBACK");
        Insertar(i.sesion.conexion, "T_Vacas", "Id_Vaca=12001, Id_Ganadero=12");
        bloquear("BEGIN IMMEDIATE");
        interfaz.contestar = true;
        QVERIFY(EntrarEnBase(i.sesion, 0, {}, {}, interfaz));
        QCOMPARE(cajas.Vistas().size(), 2); // the repairs, and the rows of the year
        sqlite3_close(otro);
    }
};

PRUEBA(PruebaEntrada)
#include "PruebaEntrada.moc"
