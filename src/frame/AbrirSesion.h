#pragma once

#include "frame/EntradaPrincipal.h"
#include "frame/Principal.h"

#include <QDialog>

#include <array>

class QLineEdit;
class QPushButton;

namespace pastorix {

// The login form: the button picks the database, what is typed picks the mode. The main window is loaded behind it and disabled as long
// as it is there. A successful entry hides it and shows the main window; leaving it otherwise ends the program. Whoever made it
// deletes it, before the main window.
class AbrirSesion : public QDialog {
    Q_OBJECT

public:
    AbrirSesion(Sesion& sesion, Principal& principal, bool entradaPrincipal = EntradaPrincipalActiva);
    ~AbrirSesion() override;

    // What a button or Enter does: 0 the main database, 1 the personal one.
    void Entrar(int indice);

    void reject() override; // Escape, Cancelar, or the window closed: end of the program

Q_SIGNALS:
    void Salida();  // the program ends
    void Abierta(); // somebody has entered

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;

private:
    QWidget* CrearCampos();
    QWidget* CrearBotones();

    Sesion& m_sesion;
    Principal& m_principal;
    std::array<QLineEdit*, 2> m_textos{};    // user, password
    std::array<QPushButton*, 2> m_aceptar{}; // main, personal
    QPushButton* m_cancelar = nullptr;
    bool m_entrando = false;
};

} // namespace pastorix
