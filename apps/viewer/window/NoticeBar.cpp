#include "apps/viewer/window/NoticeBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

namespace tolvik::viewer {

NoticeBar::NoticeBar(QWidget* parent) : QFrame(parent), label(new QLabel), buttons(new QHBoxLayout)
{
    setObjectName(QStringLiteral("notice"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    label->setForegroundRole(QPalette::ToolTipText);
    label->setObjectName(QStringLiteral("noticeText"));
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* const close = new QToolButton;
    close->setObjectName(QStringLiteral("closeNotice"));
    close->setAutoRaise(true);
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setToolTip(tr("Close this message"));
    close->setAccessibleName(tr("Close this message"));
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 4, 4);
    layout->addWidget(label, 1);
    layout->addLayout(buttons);
    layout->addWidget(close);
    hide();
}

NoticeBar::~NoticeBar() = default;

void NoticeBar::tell(const QString& text)
{
    while (QLayoutItem* const item = buttons->takeAt(0)) {
        // Its own click may be what brings the next message.
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
    label->setText(text);
    setAccessibleName(text);
    show();
}

void NoticeBar::offer(const QString& name, const QString& text, const std::function<void()>& answer)
{
    auto* const button = new QPushButton(text);
    button->setObjectName(name);
    buttons->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, answer] {
        hide();
        answer();
    });
}

} // namespace tolvik::viewer
