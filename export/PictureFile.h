#pragma once

#include <QIODevice>
#include <string>

#include "base/Lines.h"

namespace zg {

/// An unfinished picture. Its data go to a new file in the same directory, which gets the name when it is
/// complete: an existing file is replaced, and so is a symbolic link, which is not followed. Writing never
/// fails for the writer, which cannot report much: the first error is kept here.
class PictureFile : public QIODevice {
 public:
    explicit PictureFile(std::string path);
    /// Removes the file unless commit was called.
    ~PictureFile() override;
    PictureFile(const PictureFile&) = delete;
    PictureFile& operator=(const PictureFile&) = delete;

    /// Ends the file and gives it its name, unless an error occurred.
    void commit();

    /// The system's number of the first error, 0 if none.
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

/// Removes the files of unfinished pictures when the program can no longer do so normally; does only what a
/// signal handler may do.
void dropUnfinishedPictures() noexcept;

}  // namespace zg
