#pragma once

// A file that takes its name when it is whole. The name may have any bytes: the toolkit's own files know only
// names that are text.

#include <QIODevice>
#include <string>

#include "base/Lines.h"

namespace zg {

class WholeFile : public QIODevice {
 public:
    /// Opens a file beside the place that the path names. It is not open where none could be made.
    explicit WholeFile(std::string path);

    /// Without commit nothing is left of it.
    ~WholeFile() override;

    bool isSequential() const override { return true; }

    /// Gives the file its name in place of an older one; false where that fails or bytes were lost before.
    bool commit();

    /// What failed first, as the C library numbers it; 0 for nothing.
    int errorNumber() const { return errorNumber_; }

    /// Nothing more fits on the disk, in the user's share of it or in one file.
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
