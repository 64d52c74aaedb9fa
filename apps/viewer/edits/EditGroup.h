#pragma once

#include "apps/viewer/document/SlicedEdit.h"

#include <functional>
#include <memory>
#include <vector>

namespace tolvik::viewer {

/// Several edits of each of many features as one step of the history.
class EditGroup : public SlicedEdit
{
public:
    using Edits = std::vector<std::unique_ptr<RecordedEdit>>;
    /// Makes the edits of a feature, by its number, in the order in which they are to be done. They are done
    /// by that, up to the one that is refused.
    using Maker = std::function<Edits(int number, QString& refusal)>;

    /// \param text what the history calls the step
    /// \param size number of features
    EditGroup(const QString& text, int size, Maker make);

    /// Registers the kind with RecordedEdit.
    static void addMaker();

    int size() const override { return count; }
    QString perform(int number) override;
    int changes() const override { return static_cast<int>(changed.size()); }
    void turn(int change) override;
    QString kind() const override;
    QJsonObject record() const override;

protected:
    void endWalk() override;

private:
    const int count;
    Maker make; // until the edits are done for the first time
    std::vector<Edits> changed;
    std::size_t done = 0; // number of those that are done, from the first on
    bool isGoingBack = false;
};

} // namespace tolvik::viewer
