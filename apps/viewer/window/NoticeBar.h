#pragma once

#include <functional>
#include <QFrame>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace tolvik::viewer {

/// A line at the top of the window that tells something and offers what can be done about it. It does not
/// stop the user from going on, and stays until it is answered, closed or replaced.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget* parent = nullptr);
    ~NoticeBar() override;

    /// Replaces what it says, without anything to do about it.
    void tell(const QString& text);
    /// Offers something besides.
    /// \param answer is called when the user chooses it; the bar is closed before
    void offer(const QString& name, const QString& text, const std::function<void()>& answer);

private:
    QLabel* label;
    QHBoxLayout* buttons;
};

} // namespace tolvik::viewer
