#!/usr/bin/env bash
# The databases of the ODBC tests, created and removed by the test command.
#
#   odbc_env.sh sqlite DIR      driver list and data sources (SQLite only) in DIR
#   odbc_env.sh start DIR       the same, plus a throwaway PostgreSQL cluster in
#                               DIR/pg on a free local port, data source MorvixPg
#   odbc_env.sh stop DIR        stops the cluster and deletes it
#
# The driver manager is pointed at DIR with ODBCSYSINI=DIR and
# ODBCINI=DIR/odbc.ini; nothing is read from /etc.
set -euo pipefail
cmd=$1
dir=$(mkdir -p "$2" && cd "$2" && pwd)
drivers=/usr/lib/x86_64-linux-gnu/odbc
PG_USER=morvix
PG_PASSWORD=Geheim-42

write_ini() {
    cat >"$dir/odbcinst.ini" <<INI
[SQLite3]
Description=SQLite 3
Driver=$drivers/libsqlite3odbc.so
DontDLClose=1

[PostgreSQL Unicode]
Description=PostgreSQL (wide entry points)
Driver=$drivers/psqlodbcw.so
DontDLClose=1
INI
    cat >"$dir/odbc.ini" <<INI
[MorvixSqlite]
Driver=SQLite3
Database=$dir/morvix.db
Timeout=20000

[MorvixSqlite2]
Driver=SQLite3
Database=$dir/morvix2.db
Timeout=20000
INI
}

pg_bin() { ls -d /usr/lib/postgresql/*/bin | sort -V | tail -1; }

# The server refuses to run as root: run it as an unprivileged user.
as_owner() {
    if [ "$(id -u)" = 0 ]; then
        local who=postgres
        id "$who" >/dev/null 2>&1 || who=nobody
        runuser -u "$who" -- "$@"
    else
        "$@"
    fi
}

free_port() {
    local p
    for p in $(seq 54400 54999); do
        if ! (exec 3<>"/dev/tcp/127.0.0.1/$p") 2>/dev/null; then
            echo "$p"
            return 0
        fi
    done
    return 1
}

start_pg() {
    local bin port pg=$dir/pg
    bin=$(pg_bin)
    stop_pg
    mkdir -p "$pg"
    printf '%s\n' "$PG_PASSWORD" >"$pg/pw"
    [ "$(id -u)" = 0 ] && chown -R "$(id -u postgres 2>/dev/null || id -u nobody)" "$pg"
    chmod 700 "$pg"
    as_owner "$bin/initdb" -D "$pg/data" -U "$PG_USER" --pwfile="$pg/pw" -E UTF8 --locale=C.UTF-8 \
        --auth-local=trust --auth-host=scram-sha-256 >"$pg/initdb.log" 2>&1
    port=$(free_port)
    as_owner "$bin/pg_ctl" -D "$pg/data" -l "$pg/server.log" -w -t 60 \
        -o "-p $port -k $pg -c listen_addresses=127.0.0.1 -c fsync=off" start >/dev/null
    echo "$port" >"$pg/port"
    cat >>"$dir/odbc.ini" <<INI

[MorvixPg]
Driver=PostgreSQL Unicode
Servername=127.0.0.1
Port=$port
Database=postgres
INI
}

stop_pg() {
    local pg=$dir/pg
    if [ -f "$pg/data/postmaster.pid" ]; then
        as_owner "$(pg_bin)/pg_ctl" -D "$pg/data" -m immediate -w stop >/dev/null 2>&1 || true
    fi
    rm -rf "$pg"
}

case $cmd in
    sqlite) write_ini ;;
    start) write_ini; rm -f "$dir"/morvix*.db; start_pg ;;
    stop) stop_pg; rm -f "$dir"/morvix*.db ;;
    *) echo "usage: odbc_env.sh sqlite|start|stop DIR" >&2; exit 64 ;;
esac
