#pragma once

#include "exchange/datos/Historial.h"
#include "frame/Sesion.h"

#include <QDialog>

class QLineEdit;
class QPushButton;
class QTableWidget;

namespace pastorix {

// The log of exchanges, and the safety copies: looking, emptying, putting one back.
class Historial : public QDialog {
    Q_OBJECT

public:
    explicit Historial(Sesion& sesion, QWidget* padre = nullptr);

    const std::vector<Transaccion>& Filas() const { return m_filas; }
    void Vaciar();       // B_Historial
    void BorrarBackUp(); // B_BorrarBackUp
    void ElegirCopia();  // B_Restaurar

private:
    void Cargar();
    bool VaciarConTexto();
    void Filtrar(const QString& texto);

    Sesion& m_sesion;
    std::vector<Transaccion> m_filas;
    QTableWidget* m_rejilla; // Grid
    QLineEdit* m_buscar;     // hides the lines without its text
};

// Puts a safety copy in the place of the session's database, which is kept as one more copy; asks before. True when it stands there.
bool RestaurarEnSesion(Sesion& sesion, const std::filesystem::path& copia, QWidget* padre);

// The safety copies of the session's database, what is in them, and the one that is to come back.
class Copias : public QDialog {
    Q_OBJECT

public:
    explicit Copias(Sesion& sesion, QWidget* padre = nullptr);

private:
    void Examinar(int fila);
    void Restaurar();

    Sesion& m_sesion;
    std::vector<std::filesystem::path> m_copias; // same rows
    QTableWidget* m_rejilla;
};

// Mnu_Compactar: takes the room of deleted rows out of the session's database.
bool CompactarEnSesion(Sesion& sesion, QWidget* padre);

} // namespace pastorix
