#include "tests/packages/packagefixtures.h"

#include "database/language.h"
#include "database/paths.h"
#include "tests/common/testsupport.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <quazip/quazip.h>
#include <quazip/quazipfile.h>
#include <quazip/quazipnewinfo.h>
#include <zlib.h>

struct ZipWriter::Private
{
    QuaZip zip;
    bool ok = true;
    explicit Private(const QString &path) : zip(path) {}

    void write(const QuaZipNewInfo &info, const QByteArray &data, bool raw = false,
               quint32 crc = 0, int method = Z_DEFLATED)
    {
        QuaZipFile file(&zip);
        ok = file.open(QIODevice::WriteOnly, info, nullptr, crc, method, Z_DEFAULT_COMPRESSION,
                       raw) &&
             ok;
        if (!data.isEmpty())
            ok = file.write(data) == data.size() && ok;
        file.close();
        ok = file.getZipError() == ZIP_OK && ok;
    }
};

ZipWriter::ZipWriter(const QString &path) : d(new Private(path))
{
    d->ok = d->zip.open(QuaZip::mdCreate);
}

ZipWriter::~ZipWriter()
{
    close();
    delete d;
}

void ZipWriter::addFile(const QString &name, const QByteArray &data)
{
    QuaZipNewInfo info(name);
    info.externalAttr = quint32(0100644) << 16;
    d->write(info, data);
}

void ZipWriter::addFolder(const QString &name)
{
    QuaZipNewInfo info(name.endsWith('/') ? name : name + '/');
    info.externalAttr = (quint32(040755) << 16) | 0x10;
    d->write(info, QByteArray());
}

void ZipWriter::addSymlink(const QString &name, const QString &target)
{
    QuaZipNewInfo info(name);
    info.externalAttr = quint32(0120777) << 16;
    d->write(info, target.toUtf8(), false, 0, 0);
}

void ZipWriter::addRawStored(const QString &name, const QByteArray &data, quint32 crc,
                             quint64 declaredSize)
{
    QuaZipNewInfo info(name);
    info.externalAttr = quint32(0100644) << 16;
    info.uncompressedSize = ulong(declaredSize);
    d->write(info, data, true, crc, 0);
}

void ZipWriter::addZeros(const QString &name, quint64 size)
{
    // After a full flush deflate forgets what came before, so every megabyte of zeros
    // compresses to the same bytes: the stream is that block repeated, then an end block.
    const int chunk = 1 << 20;
    const QByteArray zeros(chunk, '\0');
    z_stream stream{};
    deflateInit2(&stream, 9, Z_DEFLATED, -MAX_WBITS, 9, Z_DEFAULT_STRATEGY);
    QByteArray block(chunk, '\0');
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(zeros.constData()));
    stream.avail_in = uInt(chunk);
    stream.next_out = reinterpret_cast<Bytef *>(block.data());
    stream.avail_out = uInt(block.size());
    deflate(&stream, Z_FULL_FLUSH);
    block.resize(block.size() - int(stream.avail_out));
    QByteArray end(64, '\0');
    stream.next_out = reinterpret_cast<Bytef *>(end.data());
    stream.avail_out = uInt(end.size());
    deflate(&stream, Z_FINISH);
    end.resize(end.size() - int(stream.avail_out));
    deflateEnd(&stream);

    const quint64 chunks = size / chunk;
    const uLong chunkCrc = crc32(0, reinterpret_cast<const Bytef *>(zeros.constData()), chunk);
    uLong crc = 0;
    for (quint64 i = 0; i < chunks; ++i)
        crc = crc32_combine(crc, chunkCrc, chunk);

    QuaZipNewInfo info(name);
    info.externalAttr = quint32(0100644) << 16;
    info.uncompressedSize = ulong(chunks * chunk);
    QuaZipFile file(&d->zip);
    d->ok =
        file.open(QIODevice::WriteOnly, info, nullptr, quint32(crc), Z_DEFLATED, 9, true) && d->ok;
    for (quint64 i = 0; i < chunks; ++i)
        d->ok = file.write(block) == block.size() && d->ok;
    d->ok = file.write(end) == end.size() && d->ok;
    file.close();
    d->ok = file.getZipError() == ZIP_OK && d->ok;
}

bool ZipWriter::close()
{
    if (d->zip.isOpen()) {
        d->zip.close();
        d->ok = d->zip.getZipError() == ZIP_OK && d->ok;
    }
    return d->ok;
}

QMap<QString, QByteArray> fixturePackageFiles()
{
    QMap<QString, QByteArray> files;
    const QString device = "libraries/cmsis/cm4/device_support/";
    files[device + "mq48t110.h"] = "/* MQ48T110 device header */\n#define MQ48T110\n";
    files[device + "system_mq48t110.c"] = "void SystemInit(void) {}\n";
    files[device + "system_mq48t110.h"] = "void SystemInit(void);\n";
    files[device + "startup/gcc/startup_mq48t110.s"] = "  .syntax unified\n";
    files[device + "startup/gcc/linker/MQ48T110x8_FLASH.ld"] =
        "_Min_Heap_Size = 0x200;\n_Min_Stack_Size = 0x400;\n";
    files[device + "startup/mdk/startup_mq48t110.s"] =
        "Stack_Size      EQU     0x00000400\nHeap_Size       EQU     0x00000200\n";
    files[device + "startup/iar/startup_mq48t110.s"] = "  SECTION .intvec:CODE:NOROOT(2)\n";
    files["libraries/cmsis/cm4/core_support/core_cm4.h"] = "/* core */\n";
    for (const char *driver : {"crm", "gpio", "usart"}) {
        files[QString("libraries/drivers/inc/mq48t110_%1.h").arg(driver)] =
            QByteArray("/* driver header */\n") + driver + '\n';
        files[QString("libraries/drivers/src/mq48t110_%1.c").arg(driver)] =
            QByteArray("/* driver */\n") + driver + '\n';
    }
    files["libraries/drivers/inc/mq48t110_def.h"] = "#define MQ48_DEF 1\n";
    files["middlewares/readme.txt"] = "Middlewares of the package.\n";
    files["project/mq_board_t110/templates/mq48t110_conf.h"] = "/* conf */\n";
    files["project/mq_board_t110/templates/readme.txt"] = "Board template.\n";
    return files;
}

void writeFixturePackage(const QString &folder)
{
    const QMap<QString, QByteArray> files = fixturePackageFiles();
    for (auto it = files.cbegin(); it != files.cend(); ++it)
        testsupport::writeFile(folder + '/' + it.key(), it.value());
}

bool zipFolderLikeTheBuild(const QString &parent, const QString &name, const QString &zipPath)
{
    QProcess process;
    process.setWorkingDirectory(parent);
    process.start(QStringLiteral(MQ48_CMAKE_COMMAND),
                  {"-E", "tar", "cf", zipPath, "--format=zip", name});
    return process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0 && QFileInfo(zipPath).isFile();
}

QString makeFixturePackageZip(const QString &workFolder, const QString &name)
{
    const QString source = workFolder + "/source";
    writeFixturePackage(source + '/' + name);
    const QString zip = workFolder + '/' + name + ".zip";
    QFile::remove(zip);
    return zipFolderLikeTheBuild(source, name, zip) ? zip : QString();
}

namespace {

std::string fileDescription(const QByteArray &content)
{
    return "file:" +
           QCryptographicHash::hash(content, QCryptographicHash::Md5).toHex().toStdString();
}

} // namespace

Tree snapshotTree(const QString &folder)
{
    Tree tree;
    QDirIterator it(folder, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const QFileInfo info = it.fileInfo();
        const std::string relative = path.mid(folder.size() + 1).toStdString();
        if (info.isSymLink())
            tree[relative] = "link:" + info.symLinkTarget().toStdString();
        else if (info.isDir())
            tree[relative] = "<dir>";
        else
            tree[relative] = fileDescription(testsupport::readFile(path));
    }
    return tree;
}

Tree filesOnly(const Tree &tree)
{
    Tree files;
    for (const auto &entry : tree) {
        if (entry.second.rfind("file:", 0) == 0)
            files.insert(entry);
    }
    return files;
}

Tree treeOfFiles(const QMap<QString, QByteArray> &files)
{
    Tree tree;
    for (auto it = files.cbegin(); it != files.cend(); ++it)
        tree[it.key().toStdString()] = fileDescription(it.value());
    return tree;
}

QStringList entriesOf(const QString &folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System, QDir::Name);
}

PackageAppFolder::PackageAppFolder() : m_savedLanguage(g_language)
{
    QDir().mkpath(m_dir.path() + "/MQ48DB");
    QFile::copy(testsupport::sourceDatabase() + "/MCUList.xml",
                m_dir.path() + "/MQ48DB/MCUList.xml");
    setAppFolderOverride(m_dir.path());
}

PackageAppFolder::~PackageAppFolder()
{
    setAppFolderOverride(QString());
    g_language = m_savedLanguage;
}

MessageRecorder::MessageRecorder(std::function<int(const UserMessage &)> answer)
    : m_answer(std::move(answer))
{
    setUserMessageHandler([this](QWidget *, const UserMessage &message) {
        messages.append(message);
        return m_answer ? m_answer(message) : 0;
    });
}

MessageRecorder::~MessageRecorder()
{
    setUserMessageHandler(nullptr);
}

QStringList MessageRecorder::texts() const
{
    QStringList list;
    for (const UserMessage &message : messages)
        list << message.text;
    return list;
}

int MessageRecorder::button(const UserMessage &message, const QString &text)
{
    return message.buttons.indexOf(text);
}
