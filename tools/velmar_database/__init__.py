"""What the scripts make_database and check_database share: the tables, the files, and the rules of the rows."""
