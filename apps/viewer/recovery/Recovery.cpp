#include "apps/viewer/recovery/Recovery.h"

#include "apps/viewer/document/Document.h"
#include "apps/viewer/document/RecordedEdit.h"
#include "apps/viewer/recovery/Journal.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace tolvik::viewer {

namespace {

/// \param line of a journal
ReplayStep stepOf(const QJsonObject& line, Document& target)
{
    const QJsonValue index = line.value(QLatin1String("index"));
    if (index.isDouble()) {
        return {nullptr, index.toInt()};
    }
    return {RecordedEdit::make(line.value(QLatin1String("kind")).toString(), target,
                               line.value(QLatin1String("edit")).toObject()),
            std::nullopt};
}

} // namespace

std::vector<std::unique_ptr<Recovery>> Recovery::findAll()
{
    std::vector<std::unique_ptr<Recovery>> found;
    const QDir folder(Journal::folder());
    const QFileInfoList journals =
        folder.entryInfoList({QStringLiteral("*.journal")}, QDir::Files, QDir::Time);
    for (const QFileInfo& each : journals) {
        const QString path = each.absoluteFilePath();
        auto lock = std::make_unique<QLockFile>(path + QStringLiteral(".lock"));
        lock->setStaleLockTime(0);
        if (!lock->tryLock(0)) {
            continue;
        }
        std::unique_ptr<Recovery> recovery(new Recovery(path, std::move(lock)));
        if (recovery->read()) {
            found.push_back(std::move(recovery));
        } else {
            recovery->discard();
        }
    }
    return found;
}

Recovery::Recovery(QString path, std::unique_ptr<QLockFile> lock)
    : journal(std::move(path)), lock(std::move(lock))
{
}

Recovery::~Recovery() = default;

/// \return false for a journal without a head, and where no edit is left to do
bool Recovery::read()
{
    QFile file(journal);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QJsonObject head = QJsonDocument::fromJson(file.readLine()).object();
    document = head.value(QLatin1String("file")).toString();
    mark = FileMark::fromJson(head);
    while (!file.atEnd()) {
        // The last line may have been cut.
        const QJsonObject step = QJsonDocument::fromJson(file.readLine()).object();
        if (!step.isEmpty()) {
            steps.append(step);
            edits = step.value(QLatin1String("index")).toInt(edits + 1);
        }
    }
    return !document.isEmpty() && mark.isValid() && edits != 0;
}

QString Recovery::refusal() const
{
    if (!QFileInfo(document).isFile()) {
        return tr("there is no such file any more");
    }
    if (!(FileMark::of(document) == mark)) {
        return tr("the file is not the one that was edited");
    }
    return QString();
}

void Recovery::applyTo(Document& target, const std::function<void(const QString&)>& end) const
{
    target.editRunner().replay(
        steps.size(), [this, &target](int number) { return stepOf(steps[number], target); }, end);
}

void Recovery::discard()
{
    QFile::remove(journal);
    lock.reset();
}

} // namespace tolvik::viewer
