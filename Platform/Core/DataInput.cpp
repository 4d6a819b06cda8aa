#include "Core/DataInput.h"

namespace Korvex::Core
{

boost::intrusive_ptr<DataInputFF> DataInputFF::Create(ioPath const& path)
{
    return boost::intrusive_ptr<DataInputFF>(new DataInputFF(path));
}

} // namespace Korvex::Core
