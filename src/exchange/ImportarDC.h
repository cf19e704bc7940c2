#pragma once

#include "exchange/FormularioDeRuta.h"
#include "exchange/VeterinarioImp.h"

#include <optional>

class QComboBox;

namespace pastorix {

// What the forms of a join are answered with where nobody sits before them.
struct RespuestasDeUnion {
    QString codigo, usuario;
    std::vector<std::pair<QString, QString>> ganaderos; // old code, code of the centre
};

// The centre merges a veterinarian's package.
class ImportarDC : public FormularioDeRuta {
    Q_OBJECT

public:
    explicit ImportarDC(Sesion& sesion, QWidget* padre = nullptr);
    void PonerUsuario(const QString& usuario);
    void ResponderALaUnion(RespuestasDeUnion respuestas) { m_respuestas = std::move(respuestas); }
    bool Aceptar() override;
    // What would change; nothing is written but the staging file. Throws as the route does.
    Comparacion Simular();

protected:
    QString NombreSinExtension() const override;

private:
    std::string Usuario() const;
    std::filesystem::path Origen() const;
    std::filesystem::path Central() const;
    std::filesystem::path Etapa() const;
    bool Localizar(std::filesystem::path& origen, std::filesystem::path& destino);
    void PrepararEtapa(const std::filesystem::path& origen);
    bool Unir();
    template <typename Formulario, typename Responder>
    bool PedirUnion(Responder responder);
    bool Comprobar(const std::filesystem::path& destino);
    void Fundir(const std::filesystem::path& destino);
    void Terminar(const std::filesystem::path& destino);
    void QuedarseEnLaCopia(const std::filesystem::path& destino, const std::exception& error);

    QComboBox* m_usuarios; // Cb_E
    EstadoDeUnion m_union;
    std::optional<RespuestasDeUnion> m_respuestas;
    std::vector<ToroQueCambia> m_toros; // of a join: old numbers that are another bull at the centre
};

} // namespace pastorix
