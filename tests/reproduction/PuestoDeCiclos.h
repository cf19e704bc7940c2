#pragma once

#include "PuestoDeFichas.h"

#include "frame/Principal.h"
#include "registers/datos/VacaEnMano.h"

namespace prueba {

// A cow of farmer 12 with her sheets' frame. Her code is 1200001, the year 2026.
struct PuestoDeCiclos : PuestoDeFichas {
    Principal marco{sesion};
    VacaEnMano vaca;

    PuestoDeCiclos() {
        Poner("T_Ganaderos", "Id_Ganadero=12, Nombre=Nora, Apodo=La Nora");
        Poner("T_Vacas", "Id_Vaca=1200001, Id_Ganadero=12, Nombre=Luna");
        vaca.idVaca = 1200001;
        vaca.idGanadero = 12;
        vaca.nombreC = "Luna-C";
        marco.Vincular(QStringLiteral("MnuPpal"), [] {});
        QApplication::setKeyboardInputInterval(1); // letters in lists stand for themselves
    }
    static CicloDeVaca Ciclo(int año, int parto) { return {1200001, 0, año, parto, {}, false}; }
    void PonerCubricion(int año, int parto, const char* fila = "") {
        PonerCiclo("T_Cubriciones", "Id_Cubricion", año * 100 + parto, año, parto, 1200001, fila);
    }
    void PonerParto(int año, int parto, double id, const char* fila = "", double idVaca = 1200001) {
        PonerCiclo("T_Partos", "Id_Parto", id, año, parto, idVaca, fila);
    }
    void PonerServicio(int n, const char* fecha) {
        Poner("T_Servicios", "Id_Vaca=1200001, Año_Ref=2026, N_Parto=3, N_Servicio, Fecha_Servicio", n,
              *fecha ? Valor(fecha) : Valor());
    }

private:
    void PonerCiclo(const char* tabla, const char* clave, double id, int año, int parto, double idVaca,
                    const QString& fila) {
        Poner(tabla, qUtf8Printable(QStringLiteral("%1=%2, Id_Vaca=%3, Año_Ref=%4, N_Parto=%5")
                                        .arg(clave)
                                        .arg(id, 0, 'f', 0)
                                        .arg(idVaca, 0, 'f', 0)
                                        .arg(año)
                                        .arg(parto) +
                                    (fila.isEmpty() ? fila : QStringLiteral(", ") + fila)));
    }
};

template <typename T>
T* Control(QWidget& ficha, const char* nombre) {
    return ficha.findChild<T*>(Q(nombre));
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
inline void TeclearEn(QWidget& ficha, std::initializer_list<std::pair<const char*, const char*>> campos) {
    for (const auto& [nombre, texto] : campos)
        TeclearEn(ficha, nombre, texto);
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
