#include "Desktop/Window/LossQuestion.h"

#include <QMessageBox>
#include <QPushButton>

namespace Korvex::Desktop
{

bool Confirm(LossQuestion const& question, QWidget* window)
{
    QMessageBox box(QMessageBox::Question, question.title, question.text, QMessageBox::NoButton, window);
    auto* goOn = box.addButton(question.goOn, QMessageBox::DestructiveRole);
    auto* stay = box.addButton(question.stay, QMessageBox::RejectRole);
    box.setDefaultButton(stay);
    box.setEscapeButton(stay);
    box.exec();
    return box.clickedButton() == goOn;
}

} // namespace Korvex::Desktop
