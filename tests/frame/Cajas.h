#pragma once

#include "frame/Mensajes.h"

#include <QApplication>
#include <QDialog>
#include <QList>
#include <QStringList>
#include <QTimer>

namespace prueba {

// Answers the boxes of one test and keeps them for it to look at. A question is answered with the next of the given answers; a box of
// which the test does not ask at its end is a fault, so it has to call Vistas() or Ninguna().
class Cajas {
public:
    Cajas() {
        m_anterior = pastorix::InstalarRespondedor([this](const pastorix::Mensaje& mensaje) {
            m_vistas << mensaje;
            if (conVentana) {
                QDialog ventana(QApplication::activeWindow());
                QTimer::singleShot(50, &ventana, &QDialog::accept); // long enough to become the active one
                ventana.exec();
            }
            pastorix::Respuesta respuesta;
            respuesta.fichero = carpeta;
            const bool deTres = mensaje.clase == pastorix::Mensaje::Clase::AntesDeDejar;
            if (deTres || mensaje.clase == pastorix::Mensaje::Clase::Pregunta) {
                if (m_respuestas.isEmpty())
                    qCritical("question without an answer: %s", qUtf8Printable(mensaje.texto));
                else if (m_guardar && deTres && m_respuestas.first())
                    respuesta.antesDeDejar = pastorix::AntesDeDejar::Guardar;
                else if (deTres && m_respuestas.first())
                    respuesta.antesDeDejar = pastorix::AntesDeDejar::Descartar;
                else
                    respuesta.si = m_respuestas.first();
                if (!m_respuestas.isEmpty())
                    m_respuestas.removeFirst();
            }
            return respuesta;
        });
    }
    ~Cajas() {
        pastorix::InstalarRespondedor(m_anterior);
        if (!m_vistas.isEmpty())
            qCritical("box nobody looked at: %s", qUtf8Printable(Textos().join(QLatin1String(" / "))));
    }
    Cajas(const Cajas&) = delete;
    Cajas& operator=(const Cajas&) = delete;

    qsizetype Cuantas() const { return m_vistas.size(); }
    // A real window comes and goes with every box, and takes the focus along as the user's would.
    bool conVentana = false;
    // What a chooser of folders or files answers.
    QString carpeta;

    // Yes to "do you want to lose this" and to leaving without saving (Descartar); no stays where it is.
    void Responder(bool si) { m_respuestas << si; }
    // From now on a yes to leaving saves first.
    void GuardarAlDejar(bool si = true) { m_guardar = si; }

    // The boxes since the last look.
    QList<pastorix::Mensaje> Vistas() { return std::exchange(m_vistas, {}); }
    // Titles and texts of the boxes since the last look, "title|text" each.
    QStringList Tomar() {
        const QStringList textos = Textos();
        m_vistas.clear();
        return textos;
    }

private:
    QStringList Textos() const {
        QStringList textos;
        for (const pastorix::Mensaje& m : m_vistas)
            textos << m.titulo + QLatin1Char('|') + m.texto;
        return textos;
    }

    QList<pastorix::Mensaje> m_vistas;
    QList<bool> m_respuestas;
    bool m_guardar = false;
    pastorix::Respondedor m_anterior;
};

} // namespace prueba
