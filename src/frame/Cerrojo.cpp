#include "frame/Cerrojo.h"

#include "frame/Mensajes.h"
#include "frame/calendario/ErrorDeEjecucion.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

namespace pastorix {

namespace {

// What a lock file says of who made it. Its first five lines are QLockFile's own, the sixth is ours.
struct Ocupante {
    QString equipo;
    QString usuario;
    bool deOtroEquipo = false;
};

Ocupante LeerOcupante(const QString& fichero) {
    QFile f(fichero);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    const QList<QByteArray> lineas = f.read(4096).split('\n');
    const auto linea = [&](int i) { return QString::fromUtf8(lineas.value(i)).trimmed(); };
    Ocupante o{linea(2), linea(5), false};
    // Machines made of one image share their identifier, so the name counts as well.
    o.deOtroEquipo = !o.equipo.isEmpty() &&
                     (o.equipo != QSysInfo::machineHostName() ||
                      (!linea(3).isEmpty() && linea(3) != QString::fromLatin1(QSysInfo::machineUniqueId())));
    return o;
}

QString EsteUsuario() {
    for (const char* variable : {"USER", "USERNAME", "LOGNAME"})
        if (QString usuario = qEnvironmentVariable(variable); !usuario.isEmpty())
            return usuario;
    return QDir::home().dirName();
}

// For the box of whoever meets this lock. Where the system lets nobody else write to it, the box goes without.
void AnotarUsuario(const QString& fichero) {
    QFile f(fichero);
    if (f.open(QIODevice::Append))
        f.write(EsteUsuario().toUtf8() + '\n');
}

bool QuiereSeguir(const QString& carpeta, const QString& fichero, const Ocupante& ocupante) {
    const auto dato = [](const QString& t) { return t.isEmpty() ? QStringLiteral("no consta") : t; };
    return Preguntar(
        nullptr, QStringLiteral("Atención"),
        QStringLiteral("Pastorix figura como abierto en esta carpeta: %1\n\nEquipo: %2\nUsuario: %3\nDesde: "
                       "%4\n\nSi allí ya está cerrado, puede continuar. Trabajar a la vez desde dos equipos "
                       "puede perder datos.\n¿Desea continuar?")
            .arg(QDir::toNativeSeparators(carpeta), dato(ocupante.equipo), dato(ocupante.usuario),
                 QFileInfo(fichero).lastModified().toString(QStringLiteral("dd/MM/yyyy HH:mm"))),
        TipoMensaje::Atencion);
}

} // namespace

std::unique_ptr<QLockFile> TomarCerrojo(const QString& carpeta) {
    const QString fichero = carpeta + QStringLiteral("/pastorix.lock");
    const Ocupante ocupante = LeerOcupante(fichero);
    auto cerrojo = std::make_unique<QLockFile>(fichero);
    cerrojo->setStaleLockTime(0); // age alone is no reason: sessions last for days
    bool tomado = !ocupante.deOtroEquipo && cerrojo->tryLock(0);
    const bool deEsteEquipo = !ocupante.equipo.isEmpty() && !ocupante.deOtroEquipo;
    if (!tomado && !deEsteEquipo && cerrojo->error() <= QLockFile::LockFailedError) {
        if (!QuiereSeguir(carpeta, fichero, ocupante))
            return nullptr;
        // A living process holds its file against this, on this computer always.
        tomado = cerrojo->removeStaleLockFile() && cerrojo->tryLock(0);
    }
    if (tomado) {
        AnotarUsuario(fichero);
        return cerrojo;
    }
    if (cerrojo->error() > QLockFile::LockFailedError)
        throw ErrorDeEjecucion(75, "Error de acceso a la ruta o al archivo: " + fichero.toStdString());
    Avisar(nullptr, TipoMensaje::Atencion, QStringLiteral("Atención"),
           QStringLiteral("Pastorix ya está abierto en esta carpeta: ") + QDir::toNativeSeparators(carpeta));
    return nullptr;
}

} // namespace pastorix
