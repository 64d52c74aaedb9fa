#pragma once

#include <boost/smart_ptr/intrusive_ptr.hpp>

namespace Fondo {

template <class T>
void intrusive_ptr_add_ref(const T* object)
{
    object->ref();
}

template <class T>
void intrusive_ptr_release(const T* object)
{
    object->unref();
}

template <class T>
using RefPtr = boost::intrusive_ptr<T>;

} // namespace Fondo
