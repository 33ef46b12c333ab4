// Foreign data: what another program has copied or drags, in the formats that file managers and browsers use
// for files and addresses. All of it is data of strangers: it is cut to a length that holds up nobody, and
// what is not plainly a path or an address is left out. Markup is not read.
#pragma once

#include <string>
#include <vector>

class QMimeData;

namespace quill {

struct ForeignData {
    std::vector<std::string> Files; // paths
    std::vector<std::string> Addresses;
    bool Cut = false; // the files are to be moved
};

ForeignData ReadForeignData(const QMimeData& mime);
std::string PlainTextOf(const QMimeData& mime); // empty: none
// By the names of the formats alone.
bool HoldsForeignData(const QMimeData& mime);

} // namespace quill
