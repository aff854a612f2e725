#!/usr/bin/env bash
# A friend beyond a home router, with real parts: network namespaces of this test's own, "home"
# (the host), "router" (miniupnpd, nftables doing NAT and the firewall) and "outside" (the
# joiner). The host maps its port through the router over UPnP and over NAT-PMP, opens the
# router's IPv6 firewall, and plays whole deals that mirror with a joiner outside; the mapping
# is gone from the router once hosting ends; with the router's daemon stopped the host says so
# and still hosts at home.
#   router-namespaces.sh BUILD_DIR        exit 77 (skipped) where namespaces cannot be made
set -euo pipefail
sim="$1/petalgarden-sim"

skip() {
    echo "skipped: $*"
    exit 77
}
[ "$(id -u)" -eq 0 ] || skip "making network namespaces needs root"
for tool in ip nft miniupnpd python3; do
    command -v "$tool" >/dev/null || skip "$tool is not installed"
done

tag="pg$$"
home="$tag-home" router="$tag-router" outside="$tag-outside"
work=$(mktemp -d)
cleanup() {
    for pid in $(cat "$work"/*.pid 2>/dev/null); do kill "$pid" 2>/dev/null || true; done
    for ns in "$home" "$router" "$outside"; do ip netns del "$ns" 2>/dev/null || true; done
    rm -rf "/etc/netns/$outside" "$work"
}
trap cleanup EXIT
ip netns add "$home" 2>/dev/null || skip "network namespaces cannot be made here"
ip netns add "$router" && ip netns add "$outside"

# Home is a private network and the router's outside a network that only these namespaces
# hold: nothing is routed past them. The outside address is not one of the reserved ranges,
# because miniupnpd maps nothing on a router whose own address is reserved (documentation
# addresses included), as the last case shows with a carrier's shared address.
ip link add "$tag-h" netns "$home" type veth peer name "$tag-rh" netns "$router"
ip link add "$tag-o" netns "$outside" type veth peer name "$tag-ro" netns "$router"
for ns in "$home" "$router" "$outside"; do ip -n "$ns" link set lo up; done
ip -n "$home" addr add 192.168.77.2/24 dev "$tag-h"
ip -n "$home" addr add 2001:db8:77::2/64 dev "$tag-h" nodad
ip -n "$router" addr add 192.168.77.1/24 dev "$tag-rh"
ip -n "$router" addr add 2001:db8:77::1/64 dev "$tag-rh" nodad
ip -n "$router" addr add 100.128.77.1/24 dev "$tag-ro"
ip -n "$router" addr add 2001:db8:51::1/64 dev "$tag-ro" nodad
ip -n "$outside" addr add 100.128.77.2/24 dev "$tag-o"
ip -n "$outside" addr add 2001:db8:51::2/64 dev "$tag-o" nodad
for link in "$home $tag-h" "$router $tag-rh" "$router $tag-ro" "$outside $tag-o"; do
    set -- $link
    ip -n "$1" link set "$2" up
done
ip -n "$home" route add default via 192.168.77.1
ip -n "$home" -6 route add default via 2001:db8:77::1
ip -n "$outside" -6 route add 2001:db8:77::/64 via 2001:db8:51::1
ip netns exec "$router" sysctl -qw net.ipv4.ip_forward=1 net.ipv6.conf.all.forwarding=1
# A home router's firewall: what comes from outside passes only where miniupnpd lets it.
ip netns exec "$router" nft -f - <<EOF
table inet petal {
    chain forward {
        type filter hook forward priority 0; policy drop;
        ct state established,related accept
        iifname "$tag-rh" accept
        jump miniupnpd
    }
    chain miniupnpd { }
    chain prerouting { type nat hook prerouting priority -100; policy accept; jump prerouting_miniupnpd; }
    chain prerouting_miniupnpd { }
    chain postrouting {
        type nat hook postrouting priority 100; policy accept;
        jump postrouting_miniupnpd
        oifname "$tag-ro" masquerade
    }
    chain postrouting_miniupnpd { }
}
EOF

# A name of the host for the joiner, with an IPv6 address that never answers first: only a
# joiner that tries the next address beside it comes in.
mkdir -p "/etc/netns/$outside"
printf '127.0.0.1 localhost\n2001:db8:77::99 friend.petal.test\n100.128.77.1 friend.petal.test\n' \
    >"/etc/netns/$outside/hosts"
ip netns exec "$router" nft add rule inet petal forward ip6 daddr 2001:db8:77::99 drop

stop_router() {
    kill "$(cat "$work/miniupnpd.pid")"
    wait "$(cat "$work/miniupnpd.pid")" || true
    rm "$work/miniupnpd.pid"
}

router() {  # router [options...]: miniupnpd with this configuration and the options' lines
    [ -f "$work/miniupnpd.pid" ] && stop_router
    {
        printf '%s\n' "ext_ifname=$tag-ro" "listening_ip=$tag-rh" http_port=0 secure_mode=yes \
            uuid=9b1c6f4e-5d3a-4c2b-8e7f-0a1b2c3d4e5f upnp_table_name=petal upnp_nat_table_name=petal \
            upnp_forward_chain=miniupnpd upnp_nat_chain=prerouting_miniupnpd \
            upnp_nat_postrouting_chain=postrouting_miniupnpd "$@" \
            "allow 1024-65535 192.168.77.0/24 1024-65535" "deny 0-65535 0.0.0.0/0 0-65535"
    } >"$work/miniupnpd.conf"
    ip netns exec "$router" miniupnpd -d -f "$work/miniupnpd.conf" -P "$work/daemon.pid" >"$work/miniupnpd.log" 2>&1 &
    echo $! >"$work/miniupnpd.pid"
    case "$*" in
        *enable_natpmp=yes*) wait_for "$work/miniupnpd.log" "Listening for NAT-PMP" ;;
        *) wait_for "$work/miniupnpd.log" "HTTP listening on port" ;;
    esac
}

wait_for() {  # wait_for FILE TEXT: within ten seconds, or the test fails
    for _ in $(seq 100); do
        grep -qF "$2" "$1" 2>/dev/null && return 0
        sleep 0.1
    done
    echo "FAILED: no \"$2\" in $1:" && cat "$1" && exit 1
}

host() {  # host PORT DEALS: the host in home, with the router option on
    ip netns exec "$home" timeout 40 "$sim" host --port "$1" --deals "$2" --router-port --trace >"$work/host.txt" 2>"$work/host.err" &
    echo $! >"$work/host.pid"
}

finish() {  # finish NAME PID: the side ended after its deals
    if ! wait "$2"; then echo "FAILED: the $1 did not end well" && cat "$work"/*.err && exit 1; fi
}

mirror() {  # the two traces are the same events seen from the two sides
    python3 - "$work/host.txt" "$work/join.txt" <<'EOF'
import json, sys
def events(path):
    return [json.loads(l) for l in open(path) if '"ev":"summary"' not in l]
def mirrored(e):
    e = dict(e)
    for key in ("side", "lead"):
        if key in e: e[key] = 1 - e[key]
    if "p" in e: e["p"], e["c"], e["pyaku"], e["cyaku"] = e["c"], e["p"], e["cyaku"], e["pyaku"]
    return e
host, join = events(sys.argv[1]), events(sys.argv[2])
ends = sum(e["ev"] == "end" for e in host)
if len(host) != len(join) or any(mirrored(h) != j for h, j in zip(host, join)) or ends == 0:
    sys.exit(f"the traces do not mirror ({len(host)} and {len(join)} events, {ends} deals ended)")
EOF
}

unmapped() {  # nothing of port P stands in the router's tables
    if ip netns exec "$router" nft list table inet petal | grep -q "dport $1 "; then
        echo "FAILED: the router still maps port $1" && ip netns exec "$router" nft list table inet petal && exit 1
    fi
}

play() {  # play NAME PORT ADDRESS: a joiner outside plays two deals against the mapped host
    echo "$1 ($SECONDS s)"
    host "$2" 2
    wait_for "$work/host.err" "Your friend can join at 100.128.77.1, port $2."
    ip netns exec "$outside" timeout 40 "$sim" join "$3" --port "$2" --deals 2 --trace --policy random:5 >"$work/join.txt" 2>"$work/join.err" &
    local joiner=$!
    finish joiner "$joiner"
    finish host "$(cat "$work/host.pid")"
    mirror
    unmapped "$2"
}

router enable_upnp=yes enable_natpmp=no
play "UPnP, the joiner by name (its IPv6 address silent)" 4811 friend.petal.test
echo "UPnP, the joiner over IPv6 through the router's firewall"
host 4812 2
wait_for "$work/miniupnpd.log" "AddPinhole: (inbound) from []:0 to [2001:db8:77::2]:4812"
ip netns exec "$outside" timeout 40 "$sim" join 2001:db8:77::2 --port 4812 --deals 2 --trace >"$work/join.txt" 2>"$work/join.err" &
joiner=$!
finish joiner "$joiner"
finish host "$(cat "$work/host.pid")"
mirror
unmapped 4812

router enable_upnp=no enable_natpmp=yes
play "NAT-PMP" 4813 100.128.77.1

echo "No router"
stop_router
host 4814 1
wait_for "$work/host.err" "No router answered the request to open port 4814."
ip netns exec "$home" timeout 40 "$sim" join 192.168.77.2 --port 4814 --deals 1 --trace >"$work/join.txt" 2>"$work/join.err"
finish host "$(cat "$work/host.pid")"
mirror

echo "A router behind a carrier's NAT"
ip -n "$router" addr del 100.128.77.1/24 dev "$tag-ro"
ip -n "$router" addr add 100.64.77.1/24 dev "$tag-ro"
router enable_upnp=yes enable_natpmp=yes
host 4815 1
wait_for "$work/host.err" "is private or shared (a carrier's NAT), so opening a port on it cannot help."
ip netns exec "$home" timeout 40 "$sim" join 192.168.77.2 --port 4815 --deals 1 >/dev/null 2>"$work/join.err"
finish host "$(cat "$work/host.pid")"
echo "passed"
