#include "velm/filter/ifiltermanagerfileio.h"

namespace velm {
namespace {
IFilterManagerFileIO::CreateFileIOFunc createFunc;
} // namespace

IFilterManagerFileIO::~IFilterManagerFileIO() = default;

void IFilterManagerFileIO::setCreateFileIOFunc(const CreateFileIOFunc& func)
{
    if (!func || !createFunc)
        createFunc = func;
}

const IFilterManagerFileIO::CreateFileIOFunc& IFilterManagerFileIO::createFileIOFunc()
{
    return createFunc;
}
} // namespace velm
