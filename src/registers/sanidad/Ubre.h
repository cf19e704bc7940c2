#pragma once

#include <QWidget>

#include <array>
#include <functional>

namespace pastorix {

class CuartoDeUbre;

// The udder drawn from above, the cow looking up: four quarters with their teats, each of which can be marked as lost. One stop for Tab, the
// arrows go from quarter to quarter, the space bar or a click marks.
class Ubre : public QWidget {
public:
    explicit Ubre(QWidget* padre = nullptr);

    // A quarter (0 to 3: front left, front right, rear left, rear right) and its name for screen readers.
    void Poner(std::size_t cuarto, const QString& nombre, bool marcado);
    bool Marcado(std::size_t cuarto) const;

    std::function<bool()> puedeTocar; // false: the mark stays as it is
    std::function<void()> alTocar;    // a mark was changed by the user

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* evento) override;

private:
    void Alternar(std::size_t cuarto);

    std::array<CuartoDeUbre*, 4> m_cuartos{};
};

} // namespace pastorix
