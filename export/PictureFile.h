#pragma once

#include <QIODevice>
#include <string>

#include "base/Lines.h"

namespace zg {

/// A picture's file in the making. What is written goes into a new file beside its place, which takes the
/// name when it is whole: a file of that name is replaced, and a symbolic link is replaced too, not followed.
/// Writing never fails for the writer, which knows little of why: the first fault is kept here.
class PictureFile : public QIODevice {
 public:
    explicit PictureFile(std::string path);
    /// Without a commit nothing is left.
    ~PictureFile() override;
    PictureFile(const PictureFile&) = delete;
    PictureFile& operator=(const PictureFile&) = delete;

    /// Ends the file and gives it its name, unless there was a fault.
    void commit();

    /// The system's number of the first fault, 0 for none.
    int fault() const { return fault_; }

    bool isSequential() const override { return true; }

 protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* bytes, qint64 size) override;

 private:
    void keepFault();

    std::string path_;
    std::string temporary_;
    FileHandle file_;
    int fault_ = 0;
};

/// Removes what pictures in the making have on the disk, where the program can no longer do so in order: does
/// nothing that a signal's handler may not.
void dropUnfinishedPictures() noexcept;

}  // namespace zg
