#pragma once

// A file that gets its name when it is complete. The name may have any bytes: the toolkit's own files know
// only names that are text.

#include <QIODevice>
#include <string>

#include "base/Lines.h"

namespace zg {

class WholeFile : public QIODevice {
 public:
    /// Opens a file in the directory of the path. It is not open if none could be created.
    explicit WholeFile(std::string path);

    /// Removes the file unless commit was called.
    ~WholeFile() override;

    bool isSequential() const override { return true; }

    /// Gives the file its name, replacing an older one; false if that fails or bytes were lost before.
    bool commit();

    /// The first error, as numbered by the C library; 0 if none.
    int errorNumber() const { return errorNumber_; }

    /// Whether the error means that the disk, the user's quota or the file size limit is exhausted.
    bool isFull() const;

 protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* bytes, qint64 count) override;

 private:
    bool fail();

    std::string path_;
    std::string temporary_;
    FileHandle handle_;
    int errorNumber_ = 0;
};

}  // namespace zg
