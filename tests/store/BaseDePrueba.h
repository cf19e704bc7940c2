#pragma once

#include "prueba.h"

#include "store/Conexion.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"
#include "store/Recordset.h"

#include <sqlite3.h>

#include <functional>
#include <string>
#include <vector>

namespace prueba {

inline void Sql(Conexion& c, const std::string& sql) {
    char* error = nullptr;
    if (sqlite3_exec(c.Manejador(), sql.c_str(), nullptr, nullptr, &error) != SQLITE_OK)
        qCritical("%s: %s", error, sql.c_str());
    sqlite3_free(error);
}

// Number of the error that something ends in; 0 when it runs.
inline long Numero(const std::function<void()>& f) {
    try {
        f();
    } catch (const ErrorAlmacen& e) {
        return e.Numero();
    }
    return 0;
}

// What a test puts into a database, and the look at what is there.
struct ConFilas {
    Conexion& conexion;

    // "Campo=valor, Campo": what a column takes as text; fields without one take the values that follow.
    template <typename... V>
    void Poner(const std::string& tabla, const char* fila, const V&... valores) {
        PonerFila(tabla, Q(fila), {Valor(valores)...});
    }
    void PonerFila(const std::string& tabla, const QString& fila, const std::vector<Valor>& valores) {
        auto rs = Recordset::ParaAñadir(conexion, "SELECT * FROM " + tabla);
        rs.AddNew();
        std::size_t i = 0;
        for (const auto& par : fila.split(QStringLiteral(", ")))
            if (par.contains(u'='))
                rs[par.section(u'=', 0, 0).toStdString()] = par.section(u'=', 1).toStdString();
            else
                rs[par.toStdString()] = valores.at(i++);
        if (i != valores.size())
            qCritical("values without a field: %s", qUtf8Printable(fila));
        rs.Update();
    }

    // The whole result as one text: fields by '|', rows by '/', Null as '-'.
    static std::string Texto(Conexion& c, const std::string& sentencia) {
        Recordset rs(c, sentencia, Cursor::Keyset, Bloqueo::SoloLectura);
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

inline std::string Texto(ConFilas& base, const std::string& sentencia) {
    return base.Texto(sentencia);
}
inline std::string Texto(Conexion& conexion, const std::string& sentencia) {
    return ConFilas::Texto(conexion, sentencia);
}

// A fresh main database in a folder of its own, open.
struct Base : ConFilas {
    QTemporaryDir carpeta;
    std::string fichero = carpeta.filePath(QStringLiteral("prueba.mdb")).toStdString();
    Conexion c;

    explicit Base(ClaseDeBase clase = ClaseDeBase::Principal)
        : ConFilas{c} {
        CrearBase(Ruta(fichero), clase, kClave);
        c.AbrirFichero(fichero, kClave);
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

inline Fecha F(const char* texto) {
    return FechaDeTexto(texto).value();
}

} // namespace prueba

// What a query brings, its rows by '/', its fields by '|'.
#define QUEDA(base, consulta, texto) QCOMPARE(prueba::Texto(base, "SELECT " consulta), std::string(texto))
