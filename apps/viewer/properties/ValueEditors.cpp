#include "apps/viewer/properties/ValueEditors.h"

#include "apps/viewer/properties/ListEditor.h"

#include <QComboBox>
#include <QDateEdit>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace tolvik::viewer {

namespace {

/// Texts, links and numbers: whatever fits in one line.
class LineEditor : public QLineEdit, public ValueEditor
{
public:
    LineEditor(const ValueText& text, QWidget* parent) : QLineEdit(parent), valueText(text)
    {
        setFrame(false);
    }

    void setValue(const QVariant& value) override
    {
        given = value;
        setText(valueText.textOf(value));
        selectAll();
    }

    std::optional<QVariant> value(QString& reason) const override
    {
        return isChanged() ? valueText.valueOf(text(), given, reason) : given;
    }

    bool isChanged() const override { return text() != valueText.textOf(given); }

private:
    ValueText valueText;
    QVariant given;
};

/// Texts of several lines.
class LinesEditor : public QPlainTextEdit, public ValueEditor
{
public:
    explicit LinesEditor(QWidget* parent) : QPlainTextEdit(parent) { setTabChangesFocus(true); }

    void setValue(const QVariant& value) override
    {
        setPlainText(value.toString());
        document()->setModified(false);
        given = value;
    }

    std::optional<QVariant> value(QString& /*reason*/) const override
    {
        return isChanged() ? QVariant(toPlainText()) : given;
    }

    bool isChanged() const override { return document()->isModified(); }
    bool hasLines() const override { return true; }

private:
    QVariant given;
};

class ChoiceEditor : public QComboBox, public ValueEditor
{
public:
    ChoiceEditor(const QVariantList& choices, QWidget* parent) : QComboBox(parent)
    {
        for (const QVariant& choice : choices) {
            addItem(choice.toString(), choice);
        }
    }

    void setValue(const QVariant& value) override
    {
        given = findData(value);
        setCurrentIndex(given);
    }

    std::optional<QVariant> value(QString& /*reason*/) const override { return currentData(); }
    bool isChanged() const override { return currentIndex() != given; }

private:
    int given = -1;
};

/// Texts of which some are entered often.
class SuggestionEditor : public QComboBox, public ValueEditor
{
public:
    SuggestionEditor(const QStringList& suggestions, QWidget* parent) : QComboBox(parent)
    {
        setEditable(true);
        setInsertPolicy(NoInsert);
        addItems(suggestions);
    }

    void setValue(const QVariant& value) override
    {
        given = value.toString();
        setCurrentText(given);
        lineEdit()->selectAll();
    }

    std::optional<QVariant> value(QString& /*reason*/) const override { return currentText().trimmed(); }
    bool isChanged() const override { return currentText() != given; }

private:
    QString given;
};

/// Days and times. Without a value of its own it starts at the moment that is offered.
class MomentEditor : public QDateTimeEdit, public ValueEditor
{
public:
    MomentEditor(const QString& format, QWidget* parent) : QDateTimeEdit(parent)
    {
        setFrame(false);
        setCalendarPopup(true);
        setDisplayFormat(format);
        setDateTimeRange(QDateTime(QDate(1, 1, 1), QTime(0, 0)),
                         QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59)));
    }

    void setValue(const QVariant& value) override
    {
        given = value;
        setDateTime(value.toDateTime());
        shown = dateTime();
    }

    std::optional<QVariant> value(QString& /*reason*/) const override
    {
        if (!isChanged()) {
            return given;
        }
        return given.userType() == QMetaType::QDate ? QVariant(date()) : QVariant(dateTime());
    }

    bool isChanged() const override { return dateTime() != shown; }

private:
    QVariant given;
    QDateTime shown;
};

/// Whether the calendar of the editor has the moment; documents may have others.
bool isInCalendar(const QVariant& moment)
{
    const QDate date = moment.toDate();
    return date.isValid() && date.year() >= 1 && date.year() <= 9999;
}

} // namespace

ValueEditor::~ValueEditor() = default;

QWidget* makeValueEditor(const QVariant& offered, const QVariantList& choices, const QStringList& suggestions,
                         const ValueText& text, QWidget* parent)
{
    if (!suggestions.isEmpty()) {
        return new SuggestionEditor(suggestions, parent);
    }
    switch (kindOf(offered, choices)) {
    case ValueKind::Choice:
        return new ChoiceEditor(choices, parent);
    case ValueKind::Whole:
    case ValueKind::Real:
    case ValueKind::Link:
        return new LineEditor(text, parent);
    case ValueKind::Text:
        if (offered.toString().contains('\n')) {
            return new LinesEditor(parent);
        }
        return new LineEditor(text, parent);
    case ValueKind::Date:
        return isInCalendar(offered) ? new MomentEditor(text.dateFormat(), parent) : nullptr;
    case ValueKind::DateTime:
        return isInCalendar(offered) ? new MomentEditor(text.dateTimeFormat(), parent) : nullptr;
    case ValueKind::List:
        return new ListEditor(text, parent);
    case ValueKind::Truth: // a check box in the cell itself
    case ValueKind::None:
        return nullptr;
    }
    return nullptr;
}

} // namespace tolvik::viewer
