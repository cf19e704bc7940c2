#pragma once

#include "store/Conexion.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"
#include "store/Recordset.h"

#include <sqlite3.h>

#include <QTemporaryDir>
#include <QTest>

#include <initializer_list>
#include <string>
#include <utility>

namespace prueba {

// A fresh main database in a folder of its own, open.
struct Base {
    QTemporaryDir carpeta;
    std::string fichero = carpeta.filePath(QStringLiteral("prueba.mdb")).toStdString();
    pastorix::Conexion c;

    explicit Base(pastorix::ClaseDeBase clase = pastorix::ClaseDeBase::Principal) {
        pastorix::CrearBase(pastorix::Ruta(fichero), clase, pastorix::kClave);
        c.AbrirFichero(fichero, pastorix::kClave);
        sqlite3_exec(c.Manejador(), "PRAGMA synchronous=OFF", nullptr, nullptr,
                     nullptr); // no test pulls the plug
    }

    using Fila = std::initializer_list<std::pair<const char*, pastorix::Valor>>;
    void Poner(const std::string& tabla, Fila fila) {
        pastorix::Recordset rs(c, "SELECT * FROM " + tabla);
        rs.AddNew();
        for (const auto& [campo, valor] : fila)
            rs[campo] = valor;
        rs.Update();
    }

    // The whole result as one text: fields by '|', rows by '/', Null as '-'.
    std::string Texto(const std::string& sentencia) {
        pastorix::Recordset rs(c, sentencia, pastorix::Cursor::Keyset, pastorix::Bloqueo::SoloLectura);
        std::string t;
        for (; !rs.Eof(); rs.Siguiente()) {
            t += t.empty() ? "" : "/";
            for (int i = 0; i < rs.Campos(); ++i)
                t += (i ? "|" : "") + (rs[i].Nulo() ? std::string("-") : rs[i].Texto());
        }
        return t;
    }

    // Number of the error that a statement ends in; 0 when it runs.
    long Error(const std::string& sentencia) {
        try {
            if (QByteArray::fromStdString(sentencia).toUpper().startsWith("SELECT"))
                Texto(sentencia);
            else
                c.Execute(sentencia);
        } catch (const pastorix::ErrorAlmacen& e) {
            return e.Numero();
        }
        return 0;
    }
};

inline pastorix::Fecha F(const char* texto) {
    return pastorix::FechaDeTexto(texto).value();
}

} // namespace prueba
