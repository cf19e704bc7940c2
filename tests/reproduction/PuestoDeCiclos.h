#pragma once

#include "PuestoDeFichas.h"

#include "frame/Principal.h"
#include "registers/datos/VacaEnMano.h"

#include <QCheckBox>
#include <QComboBox>
#include <QTableWidget>

namespace prueba {

// A cow of farmer 12 with her sheets' frame. Her code is 1200001, the year 2026.
struct PuestoDeCiclos : PuestoDeFichas {
    pastorix::Principal marco{sesion};
    pastorix::VacaEnMano vaca;

    PuestoDeCiclos() {
        Poner("T_Ganaderos", {{"Id_Ganadero", 12.0}, {"Nombre", "Nora"}, {"Apodo", "La Nora"}});
        Poner("T_Vacas", {{"Id_Vaca", 1200001.0}, {"Id_Ganadero", 12.0}, {"Nombre", "Luna"}});
        vaca.idVaca = 1200001;
        vaca.idGanadero = 12;
        vaca.nombreC = "Luna-C";
        marco.Vincular(QStringLiteral("MnuPpal"), [] {});
        QApplication::setKeyboardInputInterval(1); // letters in lists stand for themselves
    }
    static pastorix::CicloDeVaca Ciclo(int año, int parto) { return {1200001, 0, año, parto, {}, false}; }
    void PonerCubricion(int año, int parto, Base::Fila fila = {}) {
        pastorix::Recordset rs(sesion.conexion, "SELECT * FROM T_Cubriciones");
        rs.AddNew();
        rs["Id_Cubricion"] = año * 100 + parto;
        rs["Id_Vaca"] = 1200001.0;
        rs["Año_Ref"] = año;
        rs["N_Parto"] = parto;
        for (const auto& [campo, valor] : fila)
            rs[campo] = valor;
        rs.Update();
    }
    void PonerParto(int año, int parto, double id, Base::Fila fila = {}, double idVaca = 1200001) {
        pastorix::Recordset rs(sesion.conexion, "SELECT * FROM T_Partos");
        rs.AddNew();
        rs["Id_Parto"] = id;
        rs["Id_Vaca"] = idVaca;
        rs["Año_Ref"] = año;
        rs["N_Parto"] = parto;
        for (const auto& [campo, valor] : fila)
            rs[campo] = valor;
        rs.Update();
    }
};

template <typename T>
T* Control(QWidget& ficha, const char* nombre) {
    return ficha.findChild<T*>(QString::fromUtf8(nombre));
}
inline QString En(QWidget& ficha, const char* nombre) {
    return Control<QLineEdit>(ficha, nombre)->text();
}
inline void TeclearEn(QWidget& ficha, const char* nombre, const char* texto) {
    auto* campo = Control<QLineEdit>(ficha, nombre);
    campo->setFocus();
    campo->selectAll();
    if (*texto)
        TeclearEn(*campo, texto);
    else
        QTest::keyClick(campo, Qt::Key_Delete);
}
// The item that begins with the letter, decided on by Enter.
inline void Escoger(QWidget& ficha, const char* nombre, Qt::Key letra) {
    auto* combo = Control<QComboBox>(ficha, nombre);
    combo->setFocus();
    QTest::qSleep(3); // a letter typed later than the interval begins a new search
    QTest::keyClick(combo, letra);
    QTest::keyClick(combo, Qt::Key_Return);
}

} // namespace prueba
