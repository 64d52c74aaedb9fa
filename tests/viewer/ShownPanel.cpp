#include "viewer/ShownPanel.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>

namespace testsupport {

void answerDialog(const QMap<QString, QString>& fields)
{
    QTimer::singleShot(0, [fields] {
        QWidget* const dialog = QApplication::activeModalWidget();
        for (auto field = fields.begin(); field != fields.end(); ++field) {
            if (auto* const choice = dialog->findChild<QComboBox*>(field.key())) {
                choice->setCurrentText(field.value());
            } else {
                auto* const line = field.key().isEmpty() ? dialog->findChild<QLineEdit*>()
                                                         : dialog->findChild<QLineEdit*>(field.key());
                line->setText(field.value());
            }
        }
        QTest::keyClick(dialog, Qt::Key_Return);
    });
}

} // namespace testsupport
