/// How the singletons work that make serializers and deserializers.
#pragma once

#include <zel/ZELFrame.h>

/// Defines `Factory`, whose `create` makes a `Product` and hands it out as its interface `Made`.
/// `made` is what the header calls the parameter of `destroy`.
#define KORVA_DEFINE_SERIALIZER_FACTORY(Factory, Made, Product, made) \
    constinit Factory Factory::g_instance;                            \
    Factory& Factory::getInstance() {                                 \
        return g_instance;                                            \
    }                                                                 \
    Made* Factory::create() {                                         \
        ZEL_TRY {                                                     \
            return new Product;                                       \
        }                                                             \
        ZEL_CATCH(#Factory "::create()");                             \
    }                                                                 \
    void Factory::destroy(Made* made) {                               \
        delete made;                                                  \
    }                                                                 \
    static_assert(true, "takes the semicolon")
