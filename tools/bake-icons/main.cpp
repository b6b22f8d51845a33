// bake-icons: renders the program's drawings into pictures when the program is built,
// so that a start shows its icons without reading a drawing.
//
//   bake-icons <output.cpp> <sizes, comma-separated> <drawing.svg>...
//
// Writes a C++ source holding, for each drawing and each size, the picture as
// premultiplied ARGB32 in this machine's byte order, and the table `BakedPictures()`
// of qt/ProgramDrawings.h.  The drawings are read through the same image reader the
// program uses for a size that was not baked, so both give the same pixels.
#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QSaveFile>
#include <QStringList>
#include <cstdio>

namespace {

struct Baked {
    QString name;
    int size;
};

// The bytes of a picture as a string literal, 3-digit octal escapes for what is not
// plainly printable, cut into lines.
QByteArray literalOf(const QImage& picture) {
    QByteArray text = "\"";
    int column = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = picture.constScanLine(y);
        for (qsizetype x = 0; x < qsizetype(picture.width()) * 4; ++x) {
            const unsigned char byte = line[x];
            if (byte >= 0x20 && byte < 0x7f && byte != '"' && byte != '\\' && byte != '?') {
                text += char(byte);
                ++column;
            } else {
                text += QByteArray("\\") + QByteArray::number(byte, 8).rightJustified(3, '0');
                column += 4;
            }
            if (column >= 96) {
                text += "\"\n    \"";
                column = 0;
            }
        }
    }
    return text + "\"";
}

QImage render(const QString& file, int size, QString& error) {
    QImageReader reader(file);
    reader.setScaledSize(QSize(size, size));
    QImage picture = reader.read();
    if (picture.isNull()) {
        error = reader.errorString();
        return {};
    }
    return picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

}  // namespace

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() < 4) {
        std::fprintf(stderr, "usage: bake-icons <output.cpp> <sizes> <drawing.svg>...\n");
        return 2;
    }
    QList<int> sizes;
    for (const QString& size : args[2].split(u',', Qt::SkipEmptyParts)) sizes.append(size.toInt());

    QByteArray source =
        "// Made by bake-icons from the program's drawings when the program was built.\n"
        "#include \"qt/ProgramDrawings.h\"\n\n"
        "namespace orbidex {\n\nnamespace {\n\n";
    QList<Baked> table;
    for (const QString& file : args.mid(3)) {
        const QString name = QFileInfo(file).completeBaseName();
        for (const int size : sizes) {
            QString error;
            const QImage picture = render(file, size, error);
            if (picture.isNull() || picture.size() != QSize(size, size)) {
                std::fprintf(stderr, "bake-icons: cannot render %s at %d: %s\n", qPrintable(file), size,
                             qPrintable(error));
                return 1;
            }
            source += "alignas(4) const unsigned char kPicture" + QByteArray::number(table.size()) + "[] =\n    " +
                      literalOf(picture) + ";\n";
            table.append({name, size});
        }
    }
    source += "\nconst BakedPicture kPictures[] = {\n";
    for (qsizetype i = 0; i < table.size(); ++i)
        source += "    {\"" + table[i].name.toUtf8() + "\", " + QByteArray::number(table[i].size) + ", kPicture" +
                  QByteArray::number(i) + "},\n";
    source +=
        "};\n\n}  // namespace\n\n"
        "std::span<const BakedPicture> BakedPictures() {\n    return kPictures;\n}\n\n"
        "}  // namespace orbidex\n";

    QSaveFile out(args[1]);
    if (!out.open(QIODevice::WriteOnly) || out.write(source) != source.size() || !out.commit()) {
        std::fprintf(stderr, "bake-icons: cannot write %s\n", qPrintable(args[1]));
        return 1;
    }
    return 0;
}
