#include "scene/LibraryObjects.h"

#include <osg/MatrixTransform>
#include <osg/NodeVisitor>
#include <osg/Notify>
#include <osg/TriangleFunctor>
#include <osgDB/Callbacks>
#include <osgDB/ReadFile>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace tolvik::scene {

namespace {

/// Keeps a reader from everything that a file names, such as pictures in other places.
class NothingElse : public osgDB::ReadFileCallback
{
public:
    using Result = osgDB::ReaderWriter::ReadResult;

    Result openArchive(const std::string&, osgDB::ReaderWriter::ArchiveStatus, unsigned,
                       const osgDB::Options*) override
    {
        return Result::FILE_NOT_FOUND;
    }
    Result readObject(const std::string&, const osgDB::Options*) override { return Result::FILE_NOT_FOUND; }
    Result readImage(const std::string&, const osgDB::Options*) override { return Result::FILE_NOT_FOUND; }
    Result readHeightField(const std::string&, const osgDB::Options*) override
    {
        return Result::FILE_NOT_FOUND;
    }
    Result readShader(const std::string&, const osgDB::Options*) override { return Result::FILE_NOT_FOUND; }
    Result readNode(const std::string& name, const osgDB::Options* options) override
    {
        if (isFirst) {
            isFirst = false;
            return osgDB::ReadFileCallback::readNode(name, options);
        }
        return Result::FILE_NOT_FOUND;
    }

private:
    bool isFirst = true;
};

/// Finds one file alone. Some readers look for what a file names, and open it themselves.
class OneFile : public osgDB::FindFileCallback
{
public:
    explicit OneFile(std::string path) : path(std::move(path)) {}

    std::string findDataFile(const std::string& name, const osgDB::Options*, osgDB::CaseSensitivity) override
    {
        return name == path ? path : std::string();
    }

private:
    const std::string path;
};

struct TriangleSink
{
    std::vector<citygml::Position>* corners = nullptr;
    osg::Matrixd matrix;

    void operator()(const osg::Vec3& a, const osg::Vec3& b, const osg::Vec3& c, bool = false)
    {
        for (const osg::Vec3& corner : {a, b, c}) {
            const osg::Vec3d placed = osg::Vec3d(corner) * matrix;
            corners->push_back({placed[0], placed[1], placed[2]});
        }
    }
};

class TriangleCollector : public osg::NodeVisitor
{
public:
    explicit TriangleCollector(std::vector<citygml::Position>& corners)
        : osg::NodeVisitor(TRAVERSE_ACTIVE_CHILDREN), corners(corners)
    {
    }

    void apply(osg::Drawable& drawable) override
    {
        osg::TriangleFunctor<TriangleSink> functor;
        functor.corners = &corners;
        functor.matrix = osg::computeLocalToWorld(getNodePath());
        drawable.accept(functor);
    }

private:
    std::vector<citygml::Position>& corners;
};

} // namespace

const std::vector<citygml::Position>& LibraryObjects::trianglesOf(const QString& path)
{
    const auto found = known.find(path);
    if (found != known.end()) {
        return found->second;
    }
    std::vector<citygml::Position>& corners = known[path];
    // Readers that take nothing from a file but shapes.
    static const QStringList kinds = {"obj", "3ds", "stl", "ply"};
    if (kinds.contains(QFileInfo(path).suffix().toLower())) {
        const std::string name = QFile::encodeName(path).toStdString();
        // A document places the coordinates of a file as they are; none of its axes is taken for the upright.
        const osg::ref_ptr<osgDB::Options> options = new osgDB::Options("noRotation");
        options->setReadFileCallback(new NothingElse);
        options->setFindFileCallback(new OneFile(name));
        options->setObjectCacheHint(osgDB::Options::CACHE_NONE);
        // What is not drawn is told by this library's callers, and not on the standard error stream.
        const osg::NotifySeverity level = osg::getNotifyLevel();
        osg::setNotifyLevel(osg::FATAL);
        const osg::ref_ptr<osg::Node> node = osgDB::readRefNodeFile(name, options);
        osg::setNotifyLevel(level);
        if (node != nullptr) {
            TriangleCollector collector(corners);
            node->accept(collector);
        }
    }
    return corners;
}

} // namespace tolvik::scene
