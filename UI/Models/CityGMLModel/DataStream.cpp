#include "UI/Models/CityGMLModel/DataStream.h"

#include "framework/OperationStatus.h"

#include <algorithm>
#include <limits>
#include <QDataStream>

namespace boost::iostreams {

namespace {

// QDataStream counts in int; a buffer beyond that is filled in more than one call.
int inOneCall(std::streamsize n)
{
    return static_cast<int>(std::min<std::streamsize>(n, std::numeric_limits<int>::max()));
}

} // namespace

QHash<QDataStream*, tolvik::OperationStatus*> DataStream::statusByStream;

DataStream::DataStream(QDataStream* stream) : stream(stream), status(statusByStream[stream]) {}

std::streamsize DataStream::read(char* s, std::streamsize n)
{
    if (stream == nullptr) {
        return -1;
    }
    const int count = stream->readRawData(s, inOneCall(n));
    if (status != nullptr) {
        status->addStep(count);
    }
    return count;
}

std::streamsize DataStream::write(const char* s, std::streamsize n)
{
    return stream != nullptr ? stream->writeRawData(s, inOneCall(n)) : -1;
}

} // namespace boost::iostreams
