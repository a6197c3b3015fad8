# Run by CPack on what it is going to pack. Folders are made under the builder's umask; in the package everybody can look
# into them, and nobody but root changes them.
file(CHMOD_RECURSE "${CPACK_TEMPORARY_DIRECTORY}" DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
