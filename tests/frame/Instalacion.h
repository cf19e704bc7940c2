#pragma once

#include "BaseDePrueba.h"

#include "frame/Arranque.h"
#include "frame/Entrada.h"

namespace prueba {

template <typename... V>
void Insertar(Conexion& conexion, const std::string& tabla, const char* fila, const V&... valores) {
    ConFilas{conexion}.Poner(tabla, fila, valores...);
}

inline long Contar(Conexion& conexion, const std::string& tabla, const std::string& donde = {}) {
    return Recordset(conexion, "SELECT * FROM " + tabla + (donde.empty() ? "" : " WHERE " + donde)).Contar();
}

inline std::string Leer(Conexion& conexion, const std::string& sentencia) {
    return ValorDeCampo(conexion, sentencia);
}

inline Valor Texto(const char* t) {
    return std::string(t);
}

inline void Escribir(const QString& fichero, const QByteArray& bytes = "x") {
    QFile f(fichero);
    if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size())
        qCritical("cannot write %s", qUtf8Printable(fichero));
}

// A program's folder of its own, with the delivered files beside the program as on a first run.
class Instalacion {
public:
    explicit Instalacion(bool conBases = true) {
        if (conBases) {
            Crear("BD_PradalC.mdb", ClaseDeBase::Principal);
            Crear("BD_PradalP.mdb", ClaseDeBase::Principal);
            Crear("Toros.mdb", ClaseDeBase::Toros);
        }
        sesion.rutas = Rutas(Carpeta());
    }

    QString Carpeta() const { return m_carpeta.path(); }
    QString En(const char* nombre) const { return m_carpeta.filePath(Q(nombre)); }
    QStringList Contenido(const char* subcarpeta = ".") const {
        return QDir(En(subcarpeta)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    }
    void Crear(const char* nombre, ClaseDeBase clase) const { Crear(En(nombre), clase); }
    static void Crear(const QString& fichero, ClaseDeBase clase) {
        CrearBase(fichero.toStdString(), clase, ClaveDeBases);
    }

    // A second connection on one of the databases of a started program.
    Conexion Abrir(const char* base) const {
        Conexion conexion;
        conexion.AbrirFichero((m_carpeta.path() + QStringLiteral("/Base de Datos/") + Q(base)).toStdString(),
                              ClaveDeBases);
        return conexion;
    }

    // Users that the login knows: a veterinarian in both databases, a central user of other name in each.
    void PonerUsuarios() const {
        for (const char* base : {"BD_PradalC.mdb", "BD_PradalP.mdb"}) {
            Conexion c = Abrir(base);
            Insertar(c, "T_Veterinarios", "Id_Veterinario=2, NombreVet=Eva, Usuario=elopez");
            Insertar(c, "Claves", "Usuario=CENTRAL, Clave=oficina, NIVEL=CENTRAL");
            Insertar(c, "Claves", "Usuario=AUXILIAR, Clave=otra, NIVEL=AUXILIAR");
        }
    }

private:
    QTemporaryDir m_carpeta; // before the session: it goes when the session has let go of its files

public:
    Sesion sesion;
};

// One that has been started.
struct Arrancada : Instalacion {
    Arrancada() {
        if (!Arrancar(sesion))
            qCritical("the start failed");
    }
};

} // namespace prueba
