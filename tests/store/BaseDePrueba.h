#pragma once

#include "store/Conexion.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"
#include "store/Recordset.h"

#include <sqlite3.h>

#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <initializer_list>
#include <string>
#include <utility>

namespace prueba {

inline void Sql(pastorix::Conexion& c, const std::string& sql) {
    char* error = nullptr;
    if (sqlite3_exec(c.Manejador(), sql.c_str(), nullptr, nullptr, &error) != SQLITE_OK)
        qCritical("%s: %s", error, sql.c_str());
    sqlite3_free(error);
}

// Number of the error that something ends in; 0 when it runs.
inline long Numero(const std::function<void()>& f) {
    try {
        f();
    } catch (const pastorix::ErrorAlmacen& e) {
        return e.Numero();
    }
    return 0;
}

// What a test puts into a database, and the look at what is there.
struct ConFilas {
    using Fila = std::initializer_list<std::pair<const char*, pastorix::Valor>>;

    pastorix::Conexion& conexion;

    void Poner(const std::string& tabla, Fila fila) {
        auto rs = pastorix::Recordset::ParaAñadir(conexion, "SELECT * FROM " + tabla);
        rs.AddNew();
        for (const auto& [campo, valor] : fila)
            rs[campo] = valor;
        rs.Update();
    }
    // "Campo=valor, Campo=valor": what a column takes as text.
    void Poner(const std::string& tabla, const char* fila) {
        auto rs = pastorix::Recordset::ParaAñadir(conexion, "SELECT * FROM " + tabla);
        rs.AddNew();
        for (const auto& par : QString::fromUtf8(fila).split(QStringLiteral(", ")))
            rs[par.section(QLatin1Char('='), 0, 0).toStdString()] =
                par.section(QLatin1Char('='), 1).toStdString();
        rs.Update();
    }

    // The whole result as one text: fields by '|', rows by '/', Null as '-'.
    static std::string Texto(pastorix::Conexion& c, const std::string& sentencia) {
        pastorix::Recordset rs(c, sentencia, pastorix::Cursor::Keyset, pastorix::Bloqueo::SoloLectura);
        std::string t;
        for (; !rs.Eof(); rs.Siguiente()) {
            t += t.empty() ? "" : "/";
            for (int i = 0; i < rs.Campos(); ++i)
                t += (i ? "|" : "") + (rs[i].Nulo() ? std::string("-") : rs[i].Texto());
        }
        return t;
    }
    std::string Texto(const std::string& sentencia) { return Texto(conexion, sentencia); }
};

// A fresh main database in a folder of its own, open.
struct Base : ConFilas {
    QTemporaryDir carpeta;
    std::string fichero = carpeta.filePath(QStringLiteral("prueba.mdb")).toStdString();
    pastorix::Conexion c;

    explicit Base(pastorix::ClaseDeBase clase = pastorix::ClaseDeBase::Principal)
        : ConFilas{c} {
        pastorix::CrearBase(pastorix::Ruta(fichero), clase, pastorix::kClave);
        c.AbrirFichero(fichero, pastorix::kClave);
        Sql(c, "PRAGMA synchronous=OFF"); // no test pulls the plug
    }

    long Error(const std::string& sentencia) {
        return Numero([&] {
            if (QByteArray::fromStdString(sentencia).toUpper().startsWith("SELECT"))
                Texto(sentencia);
            else
                c.Execute(sentencia);
        });
    }
};

inline pastorix::Fecha F(const char* texto) {
    return pastorix::FechaDeTexto(texto).value();
}

} // namespace prueba
