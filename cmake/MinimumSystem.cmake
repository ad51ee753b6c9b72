# The oldest system that a program runs on: ours, or the toolkit's own where that is newer. Started
# on an older one, the Finder says so; without it, the loader would end the program without a word.
function(vantor_least_system result ours toolkits)
    set(least ${ours})
    if(toolkits VERSION_GREATER ours)
        set(least ${toolkits})
    endif()
    set(${result} ${least} PARENT_SCOPE)
endfunction()

# What a version of the toolkit asks for, by its own documents; used where its packages do not say.
function(vantor_toolkit_least_system result version)
    if(DEFINED QT_SUPPORTED_MIN_MACOS_VERSION)
        set(least ${QT_SUPPORTED_MIN_MACOS_VERSION})
    elseif(version VERSION_GREATER_EQUAL 6.10)
        set(least 13.0)
    elseif(version VERSION_GREATER_EQUAL 6.8)
        set(least 12.0)
    else()
        set(least 11.0)
    endif()
    set(${result} ${least} PARENT_SCOPE)
endfunction()
