#pragma once

#include <QString>
#include <QStringList>

namespace pastorix {

// The entry of a folder with that name whatever its letter case, as its full path; folder/name as given when there is none.
// The files come from systems that do not tell "BackUp" from "Backup".
QString BuscarSinCaja(const QString& carpeta, const QString& nombre);

// Where the program's files lie. Everything hangs from one folder, the program's own.
class Rutas {
public:
    Rutas() = default;
    explicit Rutas(const QString& carpetaPrograma)
        : m_programa(carpetaPrograma) {}

    // The program's folder of this run: the variable PASTORIX_HOME; else the folder of the executable when the databases
    // were delivered or already work there; else the user's own data folder (an installed package, whose folder is nobody's to
    // write). No separator at its end.
    static Rutas Buscar();

    const QString& Programa() const { return m_programa; }
    QString BaseDeDatos() const { return BuscarSinCaja(m_programa, QStringLiteral("Base de Datos")); }
    QString Informes() const { return BuscarSinCaja(m_programa, QStringLiteral("Informes")); }
    QString Temp() const { return BuscarSinCaja(m_programa, QStringLiteral("Temp")); }
    QString BackUp() const { return BuscarSinCaja(m_programa, QStringLiteral("BackUp")); }
    QString Manual() const { return BuscarSinCaja(m_programa, QStringLiteral("manual.pdf")); }

    QString BasePrincipal() const { return BuscarSinCaja(BaseDeDatos(), QStringLiteral("BD_PradalC.mdb")); }
    QString BasePersonal() const { return BuscarSinCaja(BaseDeDatos(), QStringLiteral("BD_PradalP.mdb")); }
    QString BaseToros() const { return BuscarSinCaja(BaseDeDatos(), QStringLiteral("Toros.mdb")); }
    // A layout by its file name ("CEBO.RPT").
    QString Informe(const QString& fichero) const { return BuscarSinCaja(Informes(), fichero); }

private:
    QString m_programa;
};

// The three databases as they are delivered beside the program, in the order in which they are looked for and moved.
QStringList BasesEntregadas();

// The user's own program folder of an installed package, and the folder the package installs what fills it.
QString CarpetaDelUsuario();
QString CarpetaCompartida();

// Fills the user's folder from the shared one with what it still lacks: databases while it has no folder Base de Datos, layouts
// while it has no folder Informes, the manual. Nothing that is there is replaced. Throws ErrorDeEjecucion for a folder that
// cannot be made and ErrorAlmacen for a copy that fails.
void RellenarCarpeta(const Rutas& rutas, const QString& compartida);

} // namespace pastorix
