#include "Subtitles/Details/LanguageSelectorList.h"

#include "Subtitles/Details/LanguageSelectorModel.h"

#include "Gui/Icons.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace Korvex::Converter::Subtitles::Details
{

namespace
{

constexpr int MARGIN = 8;
constexpr int LEAST_WIDTH = 240;
constexpr int ROW_HEIGHT = 28;
constexpr int LIST_HEIGHT = 300;
constexpr int LEAST_LIST_HEIGHT = 90;

/// The whole row is the check box; a line sets the likely languages apart from the others.
class RowDelegate final : public QStyledItemDelegate
{
public:
    RowDelegate(LanguageSelectorModel& model, QObject* parent) : QStyledItemDelegate(parent), m_model(model) {}

    void paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        if (index.row() != m_model.GetFirstOtherRow())
            return;
        painter->setPen(GUI::GetColor(GUI::ColorRole::Border));
        painter->drawLine(option.rect.topLeft(), option.rect.topRight());
    }

    [[nodiscard]] QSize sizeHint(QStyleOptionViewItem const& option, QModelIndex const& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index).expandedTo({0, ROW_HEIGHT});
    }

    bool editorEvent(QEvent* event, QAbstractItemModel* model, QStyleOptionViewItem const& option,
                     QModelIndex const& index) override
    {
        if (event->type() == QEvent::MouseButtonDblClick)
            return true; // the release after it checks again
        if (event->type() != QEvent::MouseButtonRelease)
            return QStyledItemDelegate::editorEvent(event, model, option, index);
        if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
            return false;
        bool const isChecked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        return model->setData(index, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    }

private:
    LanguageSelectorModel& m_model;
};

class ListView final : public QListView
{
public:
    using QListView::QListView;

    [[nodiscard]] QSize sizeHint() const override { return {LEAST_WIDTH, LIST_HEIGHT}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {LEAST_WIDTH, LEAST_LIST_HEIGHT}; }
};

} // namespace

LanguageSelectorList::LanguageSelectorList(std::vector<LanguageID> const& likely, std::set<LanguageID> const& chosen)
    : m_model(new LanguageSelectorModel(likely, chosen, this)),
      m_search(new QLineEdit(this)),
      m_list(new ListView(this))
{
    setObjectName(QStringLiteral("languageSelectorList"));
    m_search->setObjectName(QStringLiteral("languageSearchEdit"));
    m_search->setClearButtonEnabled(true);
    m_search->addAction(GUI::MakeIcon(GUI::IconKind::Find, GUI::ColorRole::DimText), QLineEdit::LeadingPosition);
    m_search->installEventFilter(this);
    m_list->setObjectName(QStringLiteral("languageListView"));
    m_list->setModel(m_model);
    m_list->setItemDelegate(new RowDelegate(*m_model, m_list));
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setTextElideMode(Qt::ElideRight);
    m_list->setCurrentIndex(m_model->index(0));
    m_list->installEventFilter(this);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    column->addWidget(m_search);
    column->addWidget(m_list, 1);
    Retranslate();

    connect(m_search, &QLineEdit::textChanged, this, [this] { Filter(); });
    connect(m_model, &QAbstractItemModel::dataChanged, this, [this] { Q_EMIT Chosen(m_model->GetChosen()); });
}

LanguageSelectorList::~LanguageSelectorList() = default;

void LanguageSelectorList::Filter()
{
    m_model->SetFilter(m_search->text());
    m_list->setCurrentIndex(m_model->index(0));
}

void LanguageSelectorList::Toggle()
{
    QModelIndex const index = m_list->currentIndex();
    bool const isChecked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    m_model->setData(index, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

bool LanguageSelectorList::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key())
    {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Toggle();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (watched != m_search)
            break;
        QApplication::sendEvent(m_list, event);
        return true;
    default:
        break;
    }
    return QFrame::eventFilter(watched, event);
}

void LanguageSelectorList::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
    {
        m_model->Retranslate();
        Retranslate();
    }
    QFrame::changeEvent(event);
}

void LanguageSelectorList::Retranslate()
{
    setAccessibleName(tr("Languages to search in"));
    m_search->setPlaceholderText(tr("Find a language"));
    m_search->setAccessibleName(tr("Find a language"));
    m_list->setAccessibleName(tr("Languages to search in"));
}

} // namespace Korvex::Converter::Subtitles::Details
