#pragma once

#include "BaseDePrueba.h"
#include "Cajas.h"

#include "frame/Sesion.h"
#include "frame/calendario/Reloj.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QWidget>

namespace prueba {

// A session on a fresh database, and what a user does on a sheet: type, press, look.
struct PuestoDeFichas {
    QTemporaryDir carpeta;
    pastorix::Sesion sesion;
    Cajas cajas;

    PuestoDeFichas() {
        const auto fichero = carpeta.filePath(QStringLiteral("base.mdb")).toStdString();
        pastorix::CrearBase(pastorix::Ruta(fichero), pastorix::ClaseDeBase::Principal, pastorix::kClave);
        sesion.conexion.AbrirFichero(fichero, pastorix::kClave);
        pastorix::FijarHoy(pastorix::Fecha::De(2026, 11, 22));
    }
    ~PuestoDeFichas() { pastorix::FijarHoy({}); }

    void Poner(const std::string& tabla, Base::Fila fila) {
        pastorix::Recordset rs(sesion.conexion, "SELECT * FROM " + tabla);
        rs.AddNew();
        for (const auto& [campo, valor] : fila)
            rs[campo] = valor;
        rs.Update();
    }
    std::string Texto(const std::string& sentencia) {
        pastorix::Recordset rs(sesion.conexion, sentencia, pastorix::Cursor::Keyset,
                               pastorix::Bloqueo::SoloLectura);
        std::string t;
        for (; !rs.Eof(); rs.Siguiente()) {
            t += t.empty() ? "" : "/";
            for (int i = 0; i < rs.Campos(); ++i)
                t += (i ? "|" : "") + (rs[i].Nulo() ? std::string("-") : rs[i].Texto());
        }
        return t;
    }
    // The one box since the last look: its text; a test fails on none or more.
    QString Caja() {
        const auto vistas = cajas.Vistas();
        return vistas.size() == 1 ? vistas[0].texto : QStringLiteral("%1 boxes").arg(vistas.size());
    }
};

// Shown and active: focus is part of what the sheets promise.
inline void Mostrar(QWidget& ficha) {
    ficha.show();
    ficha.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&ficha));
}
inline QLineEdit* CampoDe(QWidget& ficha, int i) {
    return ficha.findChild<QLineEdit*>(QStringLiteral("CT_Estandar(%1)").arg(i));
}
inline QPushButton* BotonDe(QWidget& ficha, const char* nombre) {
    return ficha.findChild<QPushButton*>(QString::fromUtf8(nombre));
}
// Keys one by one, of letters beyond ASCII too.
inline void TeclearEn(QLineEdit& campo, const char* texto) {
    for (const QChar c : QString::fromUtf8(texto)) {
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
