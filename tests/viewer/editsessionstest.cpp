#include "apps/viewer/edits/FeatureRemoval.h"
#include "apps/viewer/edits/GenericAttributes.h"
#include "apps/viewer/edits/PropertyEdit.h"
#include "apps/viewer/properties/PropertyNode.h"
#include "apps/viewer/properties/ValueText.h"
#include "support/Files.h"
#include "support/PanelFixture.h"
#include "support/Sessions.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace testsupport;
using namespace tolvik::viewer;

namespace {

constexpr int editsOfSession = 50;

/// The properties that can be edited.
void collect(const PropertyNode& node, QVector<const PropertyNode*>& nodes)
{
    if (node.isEditable) {
        nodes.append(&node);
    }
    for (const auto& child : node.children) {
        collect(*child, nodes);
    }
}

/// Makes edits at random, as steps of the history.
class Session
{
public:
    Session(PanelFixture& fixture, quint32 seed) : fixture(fixture), random(seed) {}

    void edit()
    {
        const int row = random.bounded(fixture.document().model().rowCount());
        gml::AbstractFeatureType& feature = *fixture.document().model().getFeature(row);
        switch (random.bounded(8)) {
        case 0:
            push(FeatureRemoval::make(fixture.document(), {&feature}, refusal));
            break;
        case 1:
            push(PropertyEdit::make(
                fixture.document(), {&feature}, PropertyEdit::AddAttribute,
                {MemberPlace::GenericAttributes, {}},
                QVariantList{random.bounded(7), "a" + QString::number(random.bounded(3)), 1, "m"}, refusal));
            break;
        case 2:
            push(PropertyEdit::make(fixture.document(), {&feature}, PropertyEdit::AddEntry,
                                    {MemberPlace::TextList, {{"function", 1}}}, "9", refusal));
            break;
        default:
            editProperty(feature);
        }
    }

private:
    void editProperty(gml::AbstractFeatureType& feature)
    {
        const std::unique_ptr<PropertyNode> tree = readProperties(fixture.document().model(), feature);
        QVector<const PropertyNode*> nodes;
        collect(*tree, nodes);
        if (nodes.isEmpty()) {
            return;
        }
        const PropertyNode& node = *nodes[random.bounded(nodes.size())];
        const MemberPlace place{MemberPlace::Property, node.path()};
        const int choice = random.bounded(4);
        const PropertyEdit::Action action = choice > 1                   ? PropertyEdit::SetValue
                                            : !node.isGenericAttribute() ? PropertyEdit::MakeAbsent
                                            : choice == 1                ? PropertyEdit::RemoveAttribute
                                                                         : PropertyEdit::RenameAttribute;
        const QVariant value = action == PropertyEdit::SetValue          ? valueFor(node)
                               : action == PropertyEdit::RenameAttribute ? QVariant("renamed")
                                                                         : QVariant();
        push(PropertyEdit::make(fixture.document(), {&feature}, action, place, value, refusal));
    }

    QVariant valueFor(const PropertyNode& node)
    {
        switch (kindOf(node.offered, node.choices)) {
        case ValueKind::Choice:
            return node.choices[random.bounded(node.choices.size())];
        case ValueKind::Truth:
            return random.bounded(2) == 1;
        case ValueKind::Whole:
            return random.bounded(2000);
        case ValueKind::Real:
            return random.bounded(1000.0);
        case ValueKind::Date:
            return QDate(1900, 1, 1).addDays(random.bounded(50000));
        case ValueKind::DateTime:
            return QDateTime(QDate(1900, 1, 1).addDays(random.bounded(50000)), QTime(1, 2, 3));
        case ValueKind::List:
            return QVariantList{1, random.bounded(9)};
        default:
            return QString("text %1").arg(random.bounded(9));
        }
    }

    template <class Edit>
    void push(std::unique_ptr<Edit> edit)
    {
        if (edit) {
            fixture.document().undoStack().push(edit.release());
        }
    }

    PanelFixture& fixture;
    QRandomGenerator random;
    QString refusal;
};

} // namespace

/// Long sessions of edits of every kind, undone and done again.
class EditSessionsTest : public QObject
{
    Q_OBJECT

private slots:
    void everyListIsEmptiedAndComesBack_data() { addPathRows(documentsBelow(examples())); }

    /// A list that could not be found again is not emptied.
    void everyListIsEmptiedAndComesBack()
    {
        QFETCH(QString, path);
        PanelFixture fixture(contentOf(path));
        QUndoStack& history = fixture.document().undoStack();
        const tolvik::CityGMLModel& model = fixture.document().model();
        const QByteArray before = fixture.saved();
        for (int row = 0; row < model.rowCount(); ++row) {
            QVector<const PropertyNode*> nodes;
            const std::unique_ptr<PropertyNode> tree = readProperties(model, *model.getFeature(row));
            collect(*tree, nodes);
            for (const PropertyNode* const node : nodes) {
                QString refusal;
                auto edit = kindOf(node->value, node->choices) == ValueKind::List
                                ? PropertyEdit::make(
                                      fixture.document(), {model.getFeature(row)}, PropertyEdit::SetValue,
                                      {MemberPlace::Property, node->path()}, QVariantList(), refusal)
                                : nullptr;
                if (edit) {
                    history.push(edit.release());
                }
            }
        }
        QVERIFY(history.count() > 0);
        QVERIFY(fixture.saved() != before);
        history.setIndex(0);
        const QByteArray now = fixture.saved();
        QVERIFY2(now == before, qPrintable(differenceOf(now, before)));
    }

    void undoingAllGivesTheDocumentBack_data() { addSessionRows(2, 50); }

    void undoingAllGivesTheDocumentBack()
    {
        QFETCH(QString, path);
        QFETCH(int, seed);
        PanelFixture fixture(contentOf(path));
        QUndoStack& history = fixture.document().undoStack();
        QVector<QByteArray> states{fixture.saved()};
        Session session(fixture, static_cast<quint32>(seed));
        for (int i = 0; i < editsOfSession; ++i) {
            session.edit();
            if (history.count() == states.size()) {
                states.append(fixture.saved());
            } else {
                QCOMPARE(fixture.saved(), states.last());
            }
        }
        QVERIFY(history.count() > editsOfSession / 4);
        for (const int end : {0, history.count(), 0}) {
            const int step = end < history.index() ? -1 : 1;
            while (history.index() != end) {
                const QString what = history.text(step < 0 ? history.index() - 1 : history.index());
                history.setIndex(history.index() + step);
                const QByteArray now = fixture.saved();
                QVERIFY2(now == states[history.index()],
                         qPrintable(what + "\n" + differenceOf(now, states[history.index()])));
            }
        }
    }
};

TEST_CLASS(EditSessionsTest, Widgets)
#include "editsessionstest.moc"
