#pragma once

#include "exchange/ElegirCarpeta.h"
#include "exchange/datos/Comparacion.h"
#include "frame/SegundoPlano.h"
#include "frame/Sesion.h"
#include "frame/Volando.h"

#include <QDialog>

#include <functional>
#include <memory>

class QDialogButtonBox;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace pastorix {

// Title of the question that a route asks before it goes on when something strikes. Callers without a display answer it with yes, after
// having told it: it only warns.
inline constexpr const char* kTituloDeAviso = "Qué va a cambiar";

// What the forms of the exchange share: folder, path, buttons, the work on a thread of its own behind Volando, the box of a failure. The
// frame is out of reach while one is open.
class FormularioDeRuta : public QDialog {
    Q_OBJECT

public:
    ~FormularioDeRuta() override;

    // B_Aceptar: true when the route was gone to its end.
    virtual bool Aceptar() = 0;

    void PonerCarpeta(const QString& carpeta) { m_carpeta->PonerCarpeta(carpeta); }
    // The full path, typed or made of folder and name.
    QString Fichero() const;
    void PonerFichero(const QString& ruta);

protected:
    // `ruta` names the route in the user's settings, `campo` is the name of the control that holds the path.
    FormularioDeRuta(Sesion& sesion, const QString& titulo, const QString& fallo, const char* campo,
                     QWidget* padre);

    // Layout: what the form has of its own comes first.
    QVBoxLayout* Cuerpo() const { return m_cuerpo; }
    // `primero` is where the form begins; the folder follows, then the path and the buttons.
    void TerminarConstruccion(QWidget* primero = nullptr);
    QPushButton* AñadirBoton(const char* nombre, const QString& texto);
    // The button B_QueVaACambiar: with something to look at, shows what `simular` finds; what it throws is told.
    void AñadirQueVaACambiar(std::function<bool()> hayQueMirar, std::function<Comparacion()> simular);
    // The path anew from folder and this name, without ".mdb".
    void RecomputarRuta();
    virtual QString NombreSinExtension() const = 0;

    // A work without the session's connection, with Volando on the screen; what it throws comes out here.
    template <typename F>
    auto Correr(F&& trabajo) {
        int mostrado = -1;
        return EnSegundoPlano(
            [&](const AvanceDeApertura& relevo) { return trabajo(Progreso([&](int p) { relevo(p, 100); })); },
            [this, mostrado](int hecho, int total) mutable {
                if (m_volando && total > 0 && hecho != mostrado)
                    m_volando->MostrarProgreso(mostrado = hecho);
            });
    }
    void MostrarVolando(const QString& titulo, const QString& rotulo = {});
    void QuitarVolando();
    Volando* ElVolando() const { return m_volando.get(); }
    void PonerOcupado();
    void QuitarOcupado();

    // The box of a failure, after the pointer is a free one again.
    void Fallar(const std::exception& error);
    // What the frame says in red; "" nothing.
    void MostrarPeligro(const QString& texto);
    // A file that is not called as the veterinarian is asked about: it is easily the one of another. True when it is his.
    bool EsSuFichero(const QString& usuario);
    // Asks about what strikes; true when there is nothing, or the user goes on. What cannot go well ends it in the box of a failure.
    bool PermiteSeguir(const Comparacion& c);

    Sesion& LaSesion() const { return m_sesion; }
    std::filesystem::path Temporal(const QString& nombre) const;
    std::filesystem::path BackUp() const;

    void done(int resultado) override;

private:
    Sesion& m_sesion;
    QString m_fallo;
    QVBoxLayout* m_cuerpo;
    QLineEdit* m_ruta;
    ElegirCarpeta* m_carpeta;
    QDialogButtonBox* m_botones;
    QPushButton* m_aceptar;
    std::unique_ptr<Volando> m_volando;
    bool m_ocupado = false;
};

// After a merge that failed the session stands on its working copy, whose rows are half of each: nothing of it goes anywhere. Throws
// ErrorDeIntercambio then.
void ExigirBaseDeLaSesion(const Sesion& sesion);

// The same path as the store spells it.
std::filesystem::path Camino(const QString& ruta);
// Titles and texts with line breaks as the boxes want them.
QString Texto(const std::string& utf8);

} // namespace pastorix
