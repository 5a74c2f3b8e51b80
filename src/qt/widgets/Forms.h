// The control's two forms: the trace parameters and the progress of a long job.
#pragma once

#include <QDialog>
#include <QStringList>

class QLabel;
class QProgressBar;

namespace Traces {

/// The lines of the parameter list, key, tab, value, in columns.
class ParametersForm final : public QDialog {
    Q_OBJECT
public:
    ParametersForm(const QStringList& lines, QWidget* parent);
};

/// Title, label, bar, and a button that asks before it interrupts.
class ProgressForm final : public QDialog {
    Q_OBJECT
public:
    ProgressForm(const QString& title, const QString& label, QWidget* parent);

    void SetPercent(int percent);

    /// The user has said so.
    bool Interrupted() const { return interrupted; }

    /// Escape and the window's own close button ask like the button does.
    void reject() override;

private:
    QLabel* text;
    QProgressBar* bar;
    bool interrupted = false;
};

} // namespace Traces
