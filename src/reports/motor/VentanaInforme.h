#pragma once

#include "reports/motor/Informe.h"
#include "reports/motor/PanelDeCifra.h"

#include <QMainWindow>

#include <functional>

class QComboBox;
class QDockWidget;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace pastorix {

class IndiceDePaginas;
class Miniaturas;
class VistaPaginas;

// The preview of a finished report: pages, thumbnails, index, search, zoom, print and export. Owns the report; closes itself away.
// It is a window of its own that no form above blocks, and that stays when the form that ran the report closes.
class VentanaInforme : public QMainWindow {
    Q_OBJECT
public:
    explicit VentanaInforme(InformeTerminado informe, PreguntasDeCifra preguntas = {},
                            QWidget* padre = nullptr);

    // Opens a preview, maximised if the report says so. The window deletes itself when closed.
    static VentanaInforme* Abrir(InformeTerminado informe, PreguntasDeCifra preguntas = {},
                                 bool comoIcono = false);

    const InformeTerminado& Informe() const { return m_informe; }

private:
    inline static const QString AnchoDePagina = QStringLiteral("Ancho de página");
    inline static const QString PaginaEntera = QStringLiteral("Página entera");

    void CrearOrdenes();
    void CrearBarra();
    void CrearPaneles();
    void CopiarTabla();
    void PreguntarCifras();
    void ExplicarCifra(int figura, const QString& impreso);
    QAction* Orden(const char* nombre) const;
    QAction* OrdenDePanel(const char* panel, const char* nombre, const char* texto, int tecla,
                          const char* icono);
    void IrAPagina(int pagina);
    void MostrarPagina(int pagina);
    void MostrarZoom();
    void ElegirZoom(const QString& texto);
    void Buscar(bool atras);
    void ImprimirInforme();
    // Asks for a file and writes it; tells what went wrong.
    void Guardar(const QString& titulo, const QString& sufijo, const QString& filtro,
                 const std::function<void(const QString&)>& escribir);

    InformeTerminado m_informe;
    PreguntasDeCifra m_preguntas;
    VistaPaginas* m_vista = nullptr;
    Miniaturas* m_miniaturas = nullptr;
    IndiceDePaginas* m_indice = nullptr;
    PanelDeCifra* m_cifra = nullptr;
    QSpinBox* m_pagina = nullptr;
    QComboBox* m_zoom = nullptr;
    QLineEdit* m_busca = nullptr;
    QLabel* m_estado = nullptr;
};

} // namespace pastorix
