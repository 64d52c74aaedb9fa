#pragma once

#include <boost/iostreams/categories.hpp>
#include <ios>
#include <QHash>

class QDataStream;

namespace tolvik {
class OperationStatus;
}

namespace boost::iostreams {

/// Lets a `boost::iostreams::stream` read and write a QDataStream, and so lets a reader of standard streams
/// read a QIODevice. It cannot seek.
/// \code
/// QDataStream data(device);
/// boost::iostreams::stream<boost::iostreams::DataStream> stream(&data);
/// \endcode
class DataStream
{
public:
    using char_type = char;                    ///< what the stream is made of
    using category = bidirectional_device_tag; ///< both ways, without seeking

    /// \param stream not owned; it must outlive the device. Null gives a device that is at its end.
    explicit DataStream(QDataStream* stream);

    /// A QIODevice that answers no bytes counts as ended, also where it only waits for more.
    /// \return how many characters were read into \a s, 0 or -1 at the end; -1 on an error
    std::streamsize read(char* s, std::streamsize n);

    /// \return how many characters of \a s were written; -1 on an error
    std::streamsize write(const char* s, std::streamsize n);

    /// What reports the progress of reading a stream; a device looks its own up when it is made. Devices
    /// enter their stream, with null where it was not known.
    static QHash<QDataStream*, tolvik::OperationStatus*> statusByStream;

private:
    QDataStream* stream;
    tolvik::OperationStatus* status;
};

} // namespace boost::iostreams
