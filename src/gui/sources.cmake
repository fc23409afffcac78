# Qt front end: added with the window.
