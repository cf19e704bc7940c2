#include "frame/Entrega.h"

#include "frame/Rutas.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <functional>

namespace pastorix {

namespace fs = std::filesystem;

namespace {

void Poner(Conexion& c, const char* tabla, std::initializer_list<std::pair<const char*, Valor>> fila) {
    Recordset rs(c, std::string("SELECT * FROM ") + tabla);
    rs.AddNew();
    for (const auto& [campo, valor] : fila)
        rs[campo] = valor;
    rs.Update();
}

void PonerGanadero(Conexion& c, double id, const char* nombre, const char* apodo, const char* torosComun) {
    Poner(c, "T_Ganaderos",
          {{"Id_Ganadero", id}, {"Nombre", nombre}, {"Apodo", apodo}, {"TorosComun", torosComun}});
}

void Crear(const QString& fichero) {
    const auto clase = QFileInfo(fichero).fileName() == QLatin1String("Toros.mdb") ? ClaseDeBase::Toros
                                                                                   : ClaseDeBase::Principal;
    CrearBase(Ruta(fichero.toStdString()), clase, kClave);
    Conexion c;
    c.AbrirFichero(fichero.toStdString(), kClave);
    EnGrupo(c, [&] {
        PonerGanadero(c, 1, "Centro de Inseminación", "Toros IA", "Sí");
        if (clase == ClaseDeBase::Toros)
            return;
        Poner(c, "T_Veterinarios", {{"Id_Veterinario", 1.0}, {"NombreVet", "VALNOR"}, {"Usuario", "VALNOR"}});
        PonerGanadero(c, 900, "Otros Toros", "Otros Toros", "No");
    });
}

// Puts each of the three by its name.
void Entregar(const QString& carpeta,
              const std::function<void(const QString& base, const QString& destino)>& poner) {
    QStringList puestas;
    try {
        for (const QString& base : BasesEntregadas()) {
            const QString destino = QDir(carpeta).filePath(base);
            if (QFileInfo::exists(BuscarSinCaja(carpeta, base)))
                throw ErrorAlmacen(CodigoError::DiscoOFichero,
                                   "El fichero ya existe: " + destino.toStdString());
            puestas << destino;
            poner(base, destino);
        }
    } catch (...) {
        for (const QString& fichero : puestas) {
            QFile::remove(fichero);
            for (const char* cola : kDiarios)
                QFile::remove(fichero + QLatin1String(cola));
        }
        throw;
    }
}

QString Hallada(const QString& origen, const QString& base) {
    QString fichero = BuscarSinCaja(origen, base);
    if (QFileInfo(fichero).isFile())
        return fichero;
    return BuscarSinCaja(BuscarSinCaja(origen, QStringLiteral("Base de Datos")), base);
}

} // namespace

void EntregarVacias(const QString& carpeta) {
    Entregar(carpeta, [](const QString&, const QString& destino) { Crear(destino); });
}

void EntregarCopias(const QString& origen, const QString& carpeta) {
    Entregar(carpeta, [&](const QString& base, const QString& destino) {
        const auto copia = Ruta(destino.toStdString());
        CopiarConDiarios(Ruta(Hallada(origen, base).toStdString()), copia);
        // What a program that died left in a journal goes into its database, for the journal does not move on with it.
        if (std::any_of(std::begin(kDiarios), std::end(kDiarios),
                        [&](const char* cola) { return fs::exists(fs::path(copia) += cola); })) {
            Conexion c;
            OpcionesApertura opciones;
            opciones.trabajo = false;
            c.AbrirFichero(destino.toStdString(), kClave, opciones);
        }
    });
}

QStringList BasesQueFaltan(const QString& origen) {
    QStringList faltan;
    for (const QString& base : BasesEntregadas())
        if (!QFileInfo(Hallada(origen, base)).isFile())
            faltan << base;
    return faltan;
}

} // namespace pastorix
