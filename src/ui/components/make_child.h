#pragma once

#include <memory>
#include <utility>

class QWidget;

/// The toolkit owns widgets through their parents. These make such objects without a bare new and
/// return a non-owning pointer.
namespace vantor {

/// A widget whose last constructor argument is its parent.
template <class Child, class Parent, class... Arguments>
Child* makeChild(Parent* parent, Arguments&&... arguments) {
    return std::make_unique<Child>(std::forward<Arguments>(arguments)..., parent).release();
}

/// The layout of `widget`.
template <class Layout>
Layout* makeLayout(QWidget* widget) {
    return std::make_unique<Layout>(widget).release();
}

/// A layout that is about to be added to another one.
template <class Layout, class... Arguments>
Layout* makeInnerLayout(Arguments&&... arguments) {
    return std::make_unique<Layout>(std::forward<Arguments>(arguments)...).release();
}

}  // namespace vantor
