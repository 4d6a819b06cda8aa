#include "Hosts/Desktop/Drive/DragSource.h"

#include "Support/GuiThread.h"

#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QScreen>
#include <QUrl>

#include <iostream>

namespace Korvex::Testing
{

namespace
{

constexpr QRect PLACE(1300, 300, 120, 80);

class SourceWindow final : public QLabel
{
public:
    explicit SourceWindow(QStringList const& paths) : m_paths(paths)
    {
        setText(QStringLiteral("Drag me"));
        setAlignment(Qt::AlignCenter);
        setGeometry(PLACE);
    }

protected:
    void mouseMoveEvent(QMouseEvent* /*event*/) override
    {
        QList<QUrl> urls;
        for (QString const& path : m_paths)
            urls << QUrl::fromLocalFile(path);
        auto* files = new QMimeData;
        files->setUrls(urls);
        auto* drag = new QDrag(this);
        drag->setMimeData(files);
        connect(drag, &QDrag::actionChanged, this,
                [](Qt::DropAction action)
                { std::cout << (action == Qt::CopyAction ? "accepted" : "refused") << std::endl; });
        // It lives until the other program has got what it wanted.
        connect(drag, &QObject::destroyed, this, &SourceWindow::Finish);
        m_isTaken = drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::CopyAction) == Qt::CopyAction;
    }

private:
    void Finish()
    {
        std::cout << (m_isTaken ? "dropped" : "not taken") << std::endl;
        QApplication::quit();
    }

    QStringList m_paths;
    bool m_isTaken = false;
};

} // namespace

DragSource::DragSource(std::vector<ioPath> const& files)
{
    QStringList arguments(QStringLiteral("--drag-source"));
    for (ioPath const& file : files)
        arguments << QString::fromStdString(file.utf8string());
    OnGui(
        [&]
        {
            m_process = std::make_unique<QProcess>();
            m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
            m_process->start(QApplication::applicationFilePath(), arguments);
        });
}

DragSource::~DragSource()
{
    OnGui(
        [this]
        {
            if (!m_process->waitForFinished(5000))
                m_process->kill();
            m_process.reset();
        });
}

QPoint DragSource::GetHandle() const
{
    return PLACE.center();
}

bool DragSource::HasSaid(char const* word)
{
    m_said += m_process->readAllStandardOutput();
    return m_said.contains(word);
}

int RunDragSource(int argumentCount, char** arguments)
{
    QApplication const application(argumentCount, arguments);
    SourceWindow window(QApplication::arguments().mid(2));
    window.show();
    std::cout << "shown" << std::endl;
    return QApplication::exec();
}

} // namespace Korvex::Testing
