#pragma once

#include <QLineEdit>

namespace pastorix {

// The year of a report: digits only, four at most; selected whole when the field is entered, so that typing replaces it. The up and down keys go to
// the next and the former year. It begins with the present reference year.
class CampoAño : public QLineEdit {
public:
    CampoAño(const QString& nombre, const QString& accesible, QWidget* padre);

protected:
    void focusInEvent(QFocusEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
};

} // namespace pastorix
