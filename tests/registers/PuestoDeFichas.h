#pragma once

#include "BaseDePrueba.h"
#include "Cajas.h"

#include "frame/Sesion.h"
#include "frame/calendario/Reloj.h"

#include <QTest>

#include <algorithm>

namespace prueba {

// A session on a fresh database, and what a user does on a sheet: type, press, look.
struct PuestoDeFichas : ConFilas {
    QTemporaryDir carpeta;
    Sesion sesion;
    Cajas cajas;

    PuestoDeFichas()
        : ConFilas{sesion.conexion} {
        const auto fichero = carpeta.filePath(QStringLiteral("base.mdb")).toStdString();
        CrearBase(Ruta(fichero), ClaseDeBase::Principal, kClave);
        sesion.conexion.AbrirFichero(fichero, kClave);
        FijarHoy(Fecha::De(2026, 11, 22));
    }
    ~PuestoDeFichas() { FijarHoy({}); }

    // The one box since the last look: its text; a test fails on none or more.
    QString Caja() {
        const auto vistas = cajas.Vistas();
        return vistas.size() == 1 ? vistas[0].texto : QStringLiteral("%1 boxes").arg(vistas.size());
    }
    // The same after a button was pressed, and its question answered.
    QString CajaDe(QAbstractButton* boton, std::optional<bool> respuesta = {}) {
        if (respuesta)
            cajas.Responder(*respuesta);
        boton->click();
        return Caja();
    }
};

// Past the store: to break something, or to put in what no form would.
inline void Crudo(Conexion& c, const char* sql) {
    QCOMPARE(sqlite3_exec(c.Manejador(), sql, nullptr, nullptr, nullptr), SQLITE_OK);
}
// All rows of a table as sorted texts: values as stored, so that neither two figures of a year nor 15 digits hide a change.
inline QStringList FilasDe(Conexion& c, const std::string& tabla) {
    QStringList filas;
    sqlite3_stmt* s = nullptr;
    sqlite3_prepare_v2(c.Manejador(), ("SELECT * FROM " + tabla).c_str(), -1, &s, nullptr);
    while (sqlite3_step(s) == SQLITE_ROW) {
        QStringList fila;
        for (int i = 0; i < sqlite3_column_count(s); ++i) {
            const auto* texto = reinterpret_cast<const char*>(sqlite3_column_text(s, i));
            fila << (texto ? QLatin1Char('=') + Q(texto) : QStringLiteral("-"));
        }
        filas << fila.join(QLatin1Char('|'));
    }
    sqlite3_finalize(s);
    filas.sort();
    return filas;
}
inline QStringList SinLosDe(const QStringList& unas, const QStringList& otras) {
    QStringList resto;
    std::set_difference(unas.begin(), unas.end(), otras.begin(), otras.end(), std::back_inserter(resto));
    return resto;
}
// A session's connection on a copy of one of the example's databases.
inline void AbrirEjemplo(Conexion& c, const QTemporaryDir& carpeta, const QString& fichero) {
    const auto copia = carpeta.filePath(fichero);
    QVERIFY(QFile::copy(QStringLiteral(PASTORIX_EJEMPLO "/") + fichero, copia));
    QVERIFY(QFile::setPermissions(copia, QFile::ReadOwner | QFile::WriteOwner));
    c.AbrirFichero(copia.toStdString(), kClave);
    Crudo(c, "PRAGMA synchronous=OFF");
}

// Shown and active: focus is part of what the sheets promise.
inline void Mostrar(QWidget& ficha) {
    ficha.show();
    ficha.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&ficha));
}
template <typename F>
struct AlaVista : F {
    template <typename... A>
    explicit AlaVista(A&&... argumentos)
        : F(std::forward<A>(argumentos)...) {
        Mostrar(*this);
    }
};
inline QLineEdit* CampoDe(QWidget& ficha, int i) {
    return ficha.findChild<QLineEdit*>(QStringLiteral("CT_Estandar(%1)").arg(i));
}
inline QPushButton* BotonDe(QWidget& ficha, const char* nombre) {
    return ficha.findChild<QPushButton*>(Q(nombre));
}
// Keys one by one, of letters beyond ASCII too.
inline void TeclearEn(QLineEdit& campo, const char* texto) {
    for (const QChar c : Q(texto)) {
        QKeyEvent pulsada(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QCoreApplication::sendEvent(&campo, &pulsada);
    }
}
inline void Teclear(QWidget& ficha, int i, const char* texto) {
    auto* campo = CampoDe(ficha, i);
    campo->setFocus();
    campo->selectAll();
    if (*texto)
        TeclearEn(*campo, texto);
    else
        QTest::keyClick(campo, Qt::Key_Delete);
}
inline void Teclear(QWidget& ficha, std::initializer_list<std::pair<int, const char*>> campos) {
    for (const auto& [i, texto] : campos)
        Teclear(ficha, i, texto);
}
// Letters that Alt reaches in a window, sorted; each must stand for one thing only.
inline QString Mnemonicos(QWidget& ficha) {
    QStringList letras;
    const auto tomar = [&](const QString& texto) {
        const auto i = texto.indexOf(QLatin1Char('&'));
        if (i >= 0)
            letras << texto.mid(i + 1, 1).toUpper();
    };
    for (const auto* l : ficha.findChildren<QLabel*>())
        tomar(l->text());
    for (const auto* b : ficha.findChildren<QAbstractButton*>())
        tomar(b->text());
    letras.sort();
    return letras.join(QString());
}
// The buttons that are on, by the first letter after B_: "AMEGCR" (R for Cerrar).
inline QString Encendidos(QWidget& ficha, const char* eliminar = "B_Eliminar",
                          const char* cerrar = "B_Cerrar") {
    QString t;
    for (const auto& [nombre, letra] : {std::pair{"B_Añadir", 'A'},
                                        {"B_Modificar", 'M'},
                                        {eliminar, 'E'},
                                        {"B_Guardar", 'G'},
                                        {"B_Cancelar", 'C'},
                                        {cerrar, 'R'}})
        if (BotonDe(ficha, nombre)->isEnabled())
            t += QLatin1Char(letra);
    return t;
}

} // namespace prueba
