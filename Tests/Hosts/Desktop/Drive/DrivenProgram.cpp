#include "Hosts/Desktop/Drive/DrivenProgram.h"

#include "Hosts/Desktop/Drive/DragSource.h"

#include "Desktop/Films/FilmList.h"
#include "Desktop/Window/MainWindow.h"

#include <QApplication>
#include <QLineEdit>

#include <algorithm>

namespace Korvex::Testing
{

namespace
{

QRect WholeOf(QWidget& widget)
{
    return widget.rect();
}

} // namespace

DrivenProgram::DrivenProgram(ioPath const& session)
{
    qputenv("KORVEX_SESSION", QByteArray::fromStdString(session.utf8string()));
    Start();
}

DrivenProgram::~DrivenProgram()
{
    OnGui([this] { m_program.reset(); });
}

void DrivenProgram::Start()
{
    OnGui(
        [this]
        {
            m_program = std::make_unique<Desktop::RunningProgram>();
            m_program->GetWindow().show();
        });
    m_person.WaitFor("the program's window to get the keyboard",
                     [this] { return m_program->GetWindow().isActiveWindow(); });
}

void DrivenProgram::Restart()
{
    m_person.PressKey(QStringLiteral("ctrl+q"));
    m_person.WaitFor("the window to close", [this] { return !m_program->GetWindow().isVisible(); });
    OnGui([this] { m_program.reset(); });
    Start();
}

void DrivenProgram::DragIn(std::vector<ioPath> const& files)
{
    QPoint const target = WaitForPlace("mainWindow", &WholeOf);
    DragSource source(files);
    m_person.WaitFor("the window to drag from", [&source] { return source.IsShown(); });
    m_person.Press(source.GetHandle());
    m_person.Glide(source.GetHandle(), target);
    auto const accepts = [&source] { return source.IsAccepted(); };
    for (int i = 0; i < 20 && !OnGui(accepts); ++i) // a person who waits for the sign does not hold still
        m_person.MoveTo(target + QPoint(i % 2, 0));
    m_person.WaitFor("the program to accept the drag", accepts);
    m_person.Photograph(QStringLiteral("drag"));
    m_person.Release();
    m_person.WaitFor("the drag to end", [&source] { return source.IsDropped(); });
}

void DrivenProgram::Click(std::string const& name)
{
    m_person.Click(WaitForPlace(name, &WholeOf));
}

void DrivenProgram::ClickRow(std::string const& view, int row)
{
    auto const findRow = [row](QWidget& widget)
    {
        auto& list = dynamic_cast<QAbstractItemView&>(widget);
        QModelIndex const index = list.model()->index(row, 0);
        list.scrollTo(index);
        QRect const place = list.visualRect(index);
        return place.translated(list.viewport()->mapTo(&list, QPoint()));
    };
    m_person.Click(WaitForPlace(view, findRow));
}

void DrivenProgram::ChooseInBox(std::string const& comboBox, QString const& text)
{
    Click(comboBox);
    QPoint previous;
    QPoint place;
    m_person.WaitFor("the list of " + comboBox + " to open with \"" + text.toStdString() + "\" in it",
                     [&]
                     {
                         auto const* box = qobject_cast<QComboBox*>(FindShown(comboBox));
                         if (box == nullptr || !box->view()->isVisible())
                             return false;
                         QRect const row = box->view()->visualRect(box->model()->index(box->findText(text), 0));
                         previous = place;
                         place = box->view()->viewport()->mapToGlobal(row.center());
                         return !row.isEmpty() && place == previous;
                     });
    m_person.Photograph(QStringLiteral("open-") + QString::fromStdString(comboBox));
    m_person.Click(place);
    m_person.WaitFor("\"" + text.toStdString() + "\" in " + comboBox,
                     [&]
                     {
                         auto const* box = qobject_cast<QComboBox*>(FindShown(comboBox));
                         return box != nullptr && box->currentText() == text && !box->view()->isVisible();
                     });
}

void DrivenProgram::EnterInto(char const* dialogClass, QString const& text)
{
    // The toolkit's dialogs give their fields no names; those of spin boxes have some.
    auto const findField = [dialogClass]() -> QWidget*
    {
        for (QWidget* dialog : QApplication::topLevelWidgets())
            if (dialog->inherits(dialogClass) && dialog->isVisible())
                for (auto* field : dialog->findChildren<QLineEdit*>(QString()))
                    if (field->isVisible() && !field->isReadOnly() && field->objectName().isEmpty())
                        return field;
        return nullptr;
    };
    m_person.Click(WaitForPlace(std::string("the field of a ") + dialogClass, findField, &WholeOf));
    m_person.PressKey(QStringLiteral("ctrl+a"));
    m_person.Type(text);
}

void DrivenProgram::Accept(char const* dialogClass)
{
    m_person.PressKey(QStringLiteral("Return"));
    m_person.WaitFor(std::string("the ") + dialogClass + " to close",
                     [dialogClass]
                     {
                         auto const windows = QApplication::topLevelWidgets();
                         return std::none_of(windows.begin(), windows.end(),
                                             [dialogClass](QWidget const* window)
                                             { return window->inherits(dialogClass) && window->isVisible(); });
                     });
}

void DrivenProgram::WaitUntilShown(std::string const& name)
{
    WaitForPlace(name, &WholeOf);
}

void DrivenProgram::WaitUntilHidden(std::string const& name)
{
    m_person.WaitFor(name + " to go", [&name] { return FindShown(name) == nullptr; });
}

void DrivenProgram::WaitUntilFocused(std::string const& name)
{
    m_person.WaitFor(name + " to have the keyboard",
                     [&name]
                     {
                         QWidget const* const widget = FindShown(name);
                         return widget != nullptr && widget->hasFocus();
                     });
}

void DrivenProgram::TabTo(std::string const& name, QString const& key)
{
    constexpr int MOST_STEPS = 60;
    auto const isThere = [&name]
    {
        QWidget const* const widget = FindShown(name);
        return widget != nullptr && widget->hasFocus();
    };
    for (int step = 0; step < MOST_STEPS && !OnGui(isThere); ++step)
        m_person.PressKey(key);
    if (!OnGui(isThere))
        throw std::runtime_error(name + " cannot be reached with " + key.toStdString());
}

QImage DrivenProgram::WaitForPicture(std::string const& what, std::function<bool(QImage const&)> const& condition)
{
    QImage picture;
    m_person.WaitFor("a preview with " + what,
                     [&]
                     {
                         auto const* pane = m_program->GetWindow().findChild<Desktop::PreviewPane*>();
                         picture = pane->GetPicture();
                         return !picture.isNull() && condition(picture);
                     });
    return picture;
}

std::chrono::microseconds DrivenProgram::GetPreviewTime()
{
    return OnGui([this] { return m_program->GetWindow().findChild<Desktop::PreviewPane*>()->GetTime(); });
}

Desktop::Film* DrivenProgram::WaitForFilm(QString const& fileName)
{
    Desktop::Film* found = nullptr;
    m_person.WaitFor("the film " + fileName.toStdString() + " to be in the list and read",
                     [&]
                     {
                         auto const* view = m_program->GetWindow().findChild<QAbstractItemView*>("filmListView");
                         for (int row = 0; row < view->model()->rowCount(); ++row)
                         {
                             auto* const film =
                                 view->model()->index(row, 0).data(Desktop::FilmList::FilmRole).value<Desktop::Film*>();
                             if (QString::fromStdString(film->GetPath().FileName()) == fileName)
                                 found = film;
                         }
                         return found != nullptr && found->GetState() == Desktop::FilmState::Ready;
                     });
    return found;
}

QWidget* DrivenProgram::FindShown(std::string const& name)
{
    for (QWidget* widget : QApplication::allWidgets())
        if (widget->objectName() == QString::fromStdString(name) && widget->isVisible())
            return widget;
    return nullptr;
}

QPoint DrivenProgram::WaitForPlace(std::string const& name, std::function<QRect(QWidget&)> const& part)
{
    return WaitForPlace(
        name, [&name] { return FindShown(name); }, part);
}

QPoint DrivenProgram::WaitForPlace(std::string const& what, std::function<QWidget*()> const& find,
                                   std::function<QRect(QWidget&)> const& part)
{
    QPoint previous;
    QPoint place;
    m_person.WaitFor(what + " to be there for a click",
                     [&]
                     {
                         QWidget* const widget = find();
                         QRect const area = widget == nullptr ? QRect() : part(*widget);
                         if (area.isEmpty() || !widget->isEnabled())
                             return false;
                         previous = place;
                         place = widget->mapToGlobal(area.center());
                         return place == previous;
                     });
    return place;
}

} // namespace Korvex::Testing
