#pragma once

#include "frame/Sesion.h"
#include "reproduction/datos/Avisos.h"

#include <QFrame>

#include <functional>
#include <vector>

class QComboBox;
class QLabel;
class QTableWidget;
class QThread;

namespace pastorix {

// The day's work, on the ground of the main window: what is expected, due or cannot be, with one key to the cow. It is read again whenever the
// window comes to the front; on a large database by a thread of its own, over a connection of its own. Closed, it stays closed.
class PanelAvisos : public QFrame {
public:
    explicit PanelAvisos(Sesion& sesion, QWidget* padre = nullptr);
    ~PanelAvisos() override;

    void Refrescar();
    bool Cerrado() const;
    void Cerrar(bool si);

    const std::vector<Aviso>& Avisos() const { return m_avisos; } // those of the farmer chosen
    double Ganadero() const;                                      // 0 all
    QString DeQuien() const;                                      // the choice in words

    std::function<void(double idVaca)> alAbrir;
    std::function<void(const QString& deQuien)> alImprimir; // those on screen

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

private:
    QLayout* CrearCabecera();
    void LeerAparte();
    void Mostrar(std::vector<Aviso> avisos);
    void Filtrar();
    void Abrir(int fila);
    QString TextoDeCopias() const;

    Sesion& m_sesion;
    std::vector<Aviso> m_todos;
    std::vector<Aviso> m_avisos;
    QComboBox* m_ganadero;
    QLabel* m_resumen;
    QLabel* m_copias;
    QTableWidget* m_tabla;
    QThread* m_lectura = nullptr;
};

} // namespace pastorix
