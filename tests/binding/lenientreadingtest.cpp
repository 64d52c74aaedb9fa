#include "citygml/Findings.h"
#include "gml/FeaturePropertyType.hxx"
#include "support/Documents.h"
#include "support/FaultDocuments.h"
#include "support/FaultEdits.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/XmlTree.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/CityGMLProxyModel.h"

#include <QtTest>

using namespace faults;
using faults::Document;
using testsupport::errorOf;
using testsupport::read;
using testsupport::write;
using testsupport::XmlNode;

namespace {

constexpr int documentsPerPlace = 2;

QStringList differencesOf(const QByteArray& a, const QByteArray& b)
{
    return XmlNode::differences(XmlNode::parse(a), XmlNode::parse(b));
}

/// Names of the tree's nodes, indented.
void addNodes(const QAbstractItemModel& tree, const QModelIndex& parent, const QString& indent,
              QStringList& nodes)
{
    for (int row = 0; row < tree.rowCount(parent); ++row) {
        const QModelIndex index = tree.index(row, 0, parent);
        nodes << indent + index.data().toString() + '|' + index.sibling(row, 1).data().toString();
        addNodes(tree, index, indent + "  ", nodes);
    }
}

QStringList nodesOf(const QByteArray& xml)
{
    tolvik::CityGMLModel model(nullptr, nullptr);
    tolvik::CityGMLProxyModel tree;
    tree.setSourceModel(&model);
    std::istringstream stream(xml.toStdString());
    model.load(stream);
    QStringList nodes{QString::number(model.rowCount(QModelIndex()))};
    addNodes(tree, QModelIndex(), QString(), nodes);
    return nodes;
}

/// Whether an element is one too many for the class, too. What a type only restricts is a list there.
bool isSeenSurplus(const Document& facts, core::CityModelType& document)
{
    const xml_schema::type* const owner = facts.kind == Kind::OneTooMany ? ownerOf(document, facts) : nullptr;
    const auto* const member =
        owner != nullptr ? memberOf(citygml::binding::recordOf(*owner), facts.place.member, false) : nullptr;
    return member != nullptr && member->ops->single;
}

class Complaints
{
public:
    void add(const Document& document, const QString& what)
    {
        ++counts[document.label().section(',', 0, 0)];
        if (first.isEmpty()) {
            first = document.label() + ": " + what + '\n' + document.faulty;
        }
    }
    bool isEmpty() const { return counts.isEmpty(); }
    QString text() const
    {
        QString result;
        for (auto kind = counts.begin(); kind != counts.end(); ++kind) {
            result += QString("%1 (%2), ").arg(kind.key()).arg(*kind);
        }
        return result + first;
    }

private:
    QMap<QString, int> counts;
    QString first;
};

} // namespace

/// Reading as loads do it: a document with a fault opens, loses nothing, and can be put right.
class LenientReadingTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const Generator generator(testsupport::schemas());
        generator.generate(documentsPerPlace, qEnvironmentVariableIsSet("TOLVIK_LONG_RUNS"),
                           [this](const Document& document) { documents.append(document); });
    }

    void documentsOpen()
    {
        QMap<QString, QPair<int, int>> opened;
        forEach([&](const Document& document, Complaints& complaints) {
            auto& ofKind = opened[document.label().section(',', 0, 0)];
            ++ofKind.second;
            bool isOpen = true;
            try {
                read(document.faulty);
            } catch (const xsd::cxx::tree::exception<char>&) {
                isOpen = false;
            }
            ofKind.first += isOpen ? 1 : 0;
            if (!isOpen) {
                complaints.add(document, "is refused");
            }
        });
        for (auto kind = opened.begin(); kind != opened.end(); ++kind) {
            qInfo("%s: %d of %d open", qPrintable(kind.key()), kind->first, kind->second);
        }
    }

    void documentsComeBack()
    {
        forEachRead([](const Document& document, core::CityModelType& model, Complaints& complaints) {
            const QByteArray saved = write(model);
            const QStringList differences = differencesOf(document.faulty, saved);
            if (!differences.isEmpty()) {
                complaints.add(document, differences.join('\n'));
            }
            const testsupport::Document copy(model._clone());
            if (write(*copy) != saved) {
                complaints.add(document, "a copy is written differently");
            }
            if (write(*read(saved)) != saved) {
                complaints.add(document, "the second save differs");
            }
        });
    }

    /// Also what is put into another document.
    void copiesOfMembersComeBack()
    {
        forEachRead([](const Document& document, core::CityModelType& model, Complaints& complaints) {
            core::CityModelType other(model);
            other.featureMember().clear();
            for (const gml::FeaturePropertyType& member : model.featureMember()) {
                other.featureMember().push_back(member);
            }
            if (write(other) != write(model)) {
                complaints.add(document, "copies of its members are written differently");
            }
        });
    }

    void everyFeatureIsThere()
    {
        forEachRead([](const Document& document, core::CityModelType& model, Complaints& complaints) {
            QStringList expected = Features(*read(document.faultless), true).ids;
            for (const QString& id : document.lost) {
                expected.removeAll(id);
            }
            const QStringList ids = Features(model, true).ids;
            if (ids != expected) {
                complaints.add(document, ids.join(' ') + " in place of " + expected.join(' '));
            }
        });
    }

    void everyNodeIsThere()
    {
        forEachRead([](const Document& document, core::CityModelType&, Complaints& complaints) {
            if (document.lost.isEmpty() && nodesOf(document.faulty) != nodesOf(document.faultless)) {
                complaints.add(document, nodesOf(document.faulty).join('\n'));
            }
        });
    }

    /// What is sound has its rows; a wrong value shows as none.
    void everySoundPropertyIsThere()
    {
        forEachRead([](const Document& document, core::CityModelType& model, Complaints& complaints) {
            const testsupport::Document sound = read(document.faultless);
            const Features faulty(model, true), faultless(*sound, true);
            QMap<QString, QVariant> values;
            for (const auto& row : faulty.rows) {
                values[row.first] = row.second->value();
            }
            int lost = 0;
            for (const auto& row : faultless.rows) {
                const QVariant value = row.second->value();
                if (!value.isValid() || values.value(row.first) == value) {
                    continue;
                }
                ++lost;
                // A list has a place for what is none.
                const bool showsNone = !values.value(row.first).isValid() ||
                                       values.value(row.first).toList().contains(QVariant());
                if (!showsNone) {
                    complaints.add(document, row.first + " is " + values[row.first].toString());
                }
            }
            // A value may show in two rows.
            if (document.kind == Kind::WrongValue && lost > 2) {
                complaints.add(document, QString("%1 values are gone").arg(lost));
            }
        });
    }

    void strictReadingStillRefuses()
    {
        forEach([](const Document& document, Complaints& complaints) {
            if (errorOf(document.faulty).isEmpty() == document.isRefused) {
                complaints.add(document, errorOf(document.faulty));
            }
        });
    }

    void settersPutRight()
    {
        const int done =
            putRight([](core::CityModelType& model, core::CityModelType& sound, const Document& facts) {
                return facts.isRefused && setMember(model, sound, facts);
            });
        QVERIFY(done > documents.size() / 8);
    }

    void propertiesPutRight()
    {
        const int done =
            putRight([](core::CityModelType& model, core::CityModelType& sound, const Document& facts) {
                const bool isValue = facts.kind == Kind::WrongValue || facts.kind == Kind::Missing;
                return isValue && editRows(Features(model, false).rows, Features(sound, false).rows);
            });
        QVERIFY(done > 20);
    }

    void findingsTellThePlace()
    {
        forEachRead([](const Document& document, core::CityModelType& model, Complaints& complaints) {
            const bool isTold =
                document.isRefused || document.kind == Kind::OutOfOrder || isSeenSurplus(document, model);
            if (!isTold) {
                if (!citygml::findingsOf(model).empty()) {
                    complaints.add(document, "has findings");
                }
                return;
            }
            const auto& groups = citygml::findingsOf(model);
            if (groups.size() != 1 || groups.front().count != 1 || groups.front().first.size() != 1) {
                complaints.add(document, QString("%1 groups of findings").arg(groups.size()));
                return;
            }
            const citygml::Finding& finding = groups.front().first.front();
            const QString path = QString::fromStdString(finding.path);
            const QString feature = QString::fromStdString(finding.featureId);
            if (finding.line != static_cast<std::uint64_t>(document.line) ||
                finding.column != static_cast<std::uint64_t>(document.column) || path != document.path ||
                feature != document.feature || finding.reason.empty()) {
                complaints.add(document, QString("%1:%2 ").arg(finding.line).arg(finding.column) + path +
                                             ' ' + feature);
            }
        });
    }

private:
    using Check = std::function<void(const Document&, Complaints&)>;
    using ReadCheck = std::function<void(const Document&, core::CityModelType&, Complaints&)>;

    void forEach(const Check& check)
    {
        Complaints complaints;
        for (const Document& document : qAsConst(documents)) {
            check(document, complaints);
        }
        QVERIFY2(complaints.isEmpty(), qPrintable(complaints.text()));
    }
    void forEachRead(const ReadCheck& check)
    {
        forEach([&](const Document& document, Complaints& complaints) {
            const testsupport::Document model = read(document.faulty);
            check(document, *model, complaints);
        });
    }

    using Edit = std::function<bool(core::CityModelType&, core::CityModelType&, const Document&)>;

    /// Edits every document and sees that strict reading takes what a save writes then.
    /// \param edit answers whether there was something to edit
    /// \return how many were edited
    int putRight(const Edit& edit)
    {
        int done = 0;
        forEachRead([&](const Document& document, core::CityModelType& model, Complaints& complaints) {
            const testsupport::Document sound = read(document.faultless);
            if (edit(model, *sound, document)) {
                ++done;
                expectSound(document, model, complaints);
            }
        });
        return done;
    }

    static void expectSound(const Document& document, const core::CityModelType& model,
                            Complaints& complaints)
    {
        const QString error = errorOf(write(model));
        if (!error.isEmpty()) {
            complaints.add(document, error);
        }
    }

    QVector<Document> documents;
};

TEST_CLASS(LenientReadingTest, Core)
#include "lenientreadingtest.moc"
