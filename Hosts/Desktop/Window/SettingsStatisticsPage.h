#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace Korvex::Desktop
{

/// The page of the settings about statistics: what is counted, the switch, what has been recorded. A passive view. GUI
/// thread.
class SettingsStatisticsPage final : public QWidget
{
    Q_OBJECT
public:
    /// @param file where it is recorded
    SettingsStatisticsPage(QString const& file, bool isCounting, QWidget* parent = nullptr);
    ~SettingsStatisticsPage() override;

    [[nodiscard]] bool IsCounting() const;
    void ShowLines(QString const& lines);
    /// In place of the lines.
    void ShowFailure(QString const& sentence);

Q_SIGNALS:
    void DeleteRequested();

protected:
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();

    QString m_file;
    QLabel* m_explanation;
    QCheckBox* m_switch;
    QLabel* m_recorded;
    QPlainTextEdit* m_lines;
    QPushButton* m_delete;
};

} // namespace Korvex::Desktop
