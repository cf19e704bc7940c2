#pragma once

#include "frame/Entrada.h"
#include "frame/Sesion.h"

#include <QMainWindow>

#include <functional>
#include <map>

class QAction;
class QLabel;
class QMenu;

namespace pastorix {

// The main window: menu tree, toolbar, status bar. It has no data of its own; each command opens another form, and the commands that
// belong to other rooms are bound from outside. It is loaded before anybody has entered, on the main database, and stays hidden and
// disabled until then.
class Principal : public QMainWindow {
    Q_OBJECT

public:
    explicit Principal(Sesion& sesion);

    // Gives an entry its command. An entry of whose command nobody has told is shown disabled.
    void Vincular(const QString& nombreDeAccion, std::function<void()> orden);

    // State that an entry into a database gives an order, a rule or a menu. What is disabled stays so however it is bound.
    void Mostrar(const QString& orden, bool visible);
    void Activar(const QString& orden, bool activa);
    void ActivarBoton(int boton, bool activo);

    // Text of panel 1 of the status bar: the mode.
    void FijarPanel(const QString& texto);
    QString Panel() const;
    // A sign in the status bar that the database is open to be looked at only.
    void MostrarSoloLectura(bool soloLectura);
    // What the user must not overlook as long as it lasts, in red: the session stands on a file that is worth nothing, or on none. "" takes
    // it away.
    void MostrarPeligro(const QString& texto);
    QString Peligro() const;

    // The action of an entry by its name, nullptr for an unknown one; the action of a toolbar button by its index.
    QAction* Orden(const QString& nombre) const;
    QAction* Boton(int indice) const;

    // The mating sheet's panel of causes, while it is dragged, may be let go over the frame too.
    std::function<void()> alSoltarPanel;
    // What such a drag carries.
    static const char* TipoDePanel();

    // The pop-up with MnuPpal, for the mating sheet.
    QMenu* MenuCausaPrincipal() const;

    Sesion& LaSesion() const { return m_sesion; }

Q_SIGNALS:
    // The program ends: Mnu_Salir, toolbar button 1, or this window closed.
    void Salida();
    // It came to the front: what it shows of the database may be old.
    void Activada();

protected:
    void closeEvent(QCloseEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void dragEnterEvent(QDragEnterEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;

private:
    struct Estado {
        QAction* accion = nullptr;
        std::function<void()> orden;
        bool activa = true; // as designed, or as the entry left it
        bool necesitaOrden = false;
    };

    void CrearMenus();
    void CrearBarra();
    void CrearPaneles();
    void AjustarPaneles();
    void PurgarHistorial();
    void VincularPropias();
    void Ejecutar(const QString& nombre);
    void Refrescar(const QString& nombre);

    Sesion& m_sesion;
    std::map<QString, Estado> m_ordenes;
    std::map<QString, QMenu*> m_menus;
    std::map<int, Estado> m_botones;
    QLabel* m_panelModo = nullptr;
    QLabel* m_panelFecha = nullptr;
    QLabel* m_soloLectura = nullptr;
    QLabel* m_peligro = nullptr;
};

// How an entry reaches a main window: titles, panel, visible and enabled entries. Without the yearly question.
class EntradaEnPrincipal : public InterfazDeEntrada {
public:
    explicit EntradaEnPrincipal(Principal& principal)
        : m_principal(principal) {}

    QWidget* Ventana() override { return &m_principal; }
    void FijarTitulo(const QString& titulo) override { m_principal.setWindowTitle(titulo); }
    void FijarPanel(const QString& texto) override { m_principal.FijarPanel(texto); }
    void Mostrar(const QString& orden, bool visible) override { m_principal.Mostrar(orden, visible); }
    void Activar(const QString& orden, bool activa) override { m_principal.Activar(orden, activa); }
    void ActivarBoton(int boton, bool activo) override { m_principal.ActivarBoton(boton, activo); }
    void MostrarSoloLectura(bool soloLectura) override { m_principal.MostrarSoloLectura(soloLectura); }

private:
    Principal& m_principal;
};

} // namespace pastorix
