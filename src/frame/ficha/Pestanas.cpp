#include "frame/ficha/Pestanas.h"

#include "frame/Atajos.h"

#include <QTabWidget>

namespace pastorix {

namespace {

void EntrarEn(QWidget& pagina) {
    for (auto* w = pagina.nextInFocusChain(); w != &pagina; w = w->nextInFocusChain())
        if (pagina.isAncestorOf(w) && w->isVisible() && w->isEnabled() && (w->focusPolicy() & Qt::TabFocus))
            return w->setFocus(Qt::TabFocusReason);
}

} // namespace

void ConectarPestañas(QTabWidget& pestañas) {
    pestañas.setAccessibleName(QStringLiteral("Pestañas"));
    for (int i = 0; i < pestañas.count(); ++i) {
        const QKeySequence tecla(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + i));
        PonerAtajo(*pestañas.window(), tecla, QStringLiteral("Pestaña ") + pestañas.tabText(i).trimmed(),
                   [&pestañas, i] {
                       if (!pestañas.isTabEnabled(i))
                           return;
                       const auto* foco = pestañas.window()->focusWidget();
                       const bool dentro =
                           (foco && pestañas.isAncestorOf(foco)) || i == pestañas.currentIndex();
                       pestañas.setCurrentIndex(i);
                       if (dentro)
                           EntrarEn(*pestañas.currentWidget());
                   });
        pestañas.setTabToolTip(i, QStringLiteral("Ctrl+%1").arg(i + 1));
    }
}

} // namespace pastorix
